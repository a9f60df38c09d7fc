#pragma once

#include <memory>
#include <string>

#include "plugin/host/HostCallError.h"
#include "plugin/host/HostEventRelay.h"
#include "plugin/host/HostToolbar.h"

namespace Orva::Plugin {

// The plug-in host's objects as the controller uses them: the init object (ready and shutdown
// events), the API object (its ribbon, toolbar and selection events), their event sinks, COM and
// GDI+.
// The sinks themselves only relay events as controller messages (HostEventRelay.h).
class IHostObjects {
public:
    virtual ~IHostObjects() = default;

    // Creates NktWLMailApiInit's WLMailApiInit object; false when it could not be created.
    virtual bool CreateInitObject() = 0;
    virtual bool AdviseInitSink() = 0;
    // Unadvises and releases the init sink; may throw HostCallError or anything else.
    virtual void UnadviseInitSink() = 0;
    virtual void ReleaseInitObject() = 0;

    virtual bool HasApiObject() const = 0;
    // Creates NktWLMailApi's WLMailApi object; false when it could not be created.
    virtual bool CreateApiObject() = 0;
    virtual bool AdviseApiSink() = 0;
    // Unadvises and releases the API sink and object; may throw HostCallError or anything else.
    virtual void UnadviseApiSink() = 0;
    // The API object's ribbon; its calls fail while there is no API object.
    virtual IHostToolbar& Toolbar() = 0;

    virtual void InitializeCom() = 0;
    virtual void UninitializeCom() = 0;
    virtual void StartGdiplus() = 0;
    virtual void ShutdownGdiplus() = 0;
};

// The host's objects in this process: COM objects of the plug-in host on Windows, whose sinks
// relay through `relay`; natively there is no host and nothing can be created.
std::unique_ptr<IHostObjects> CreateSystemHostObjects(CHostEventRelay& relay,
                                                      ZelCommon::Library::DebugLog& log);

}  // namespace Orva::Plugin
