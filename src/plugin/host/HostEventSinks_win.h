#pragma once

#include <cstdint>

#include "plugin/host/DispatchSink_win.h"
#include "plugin/host/HostEventRelay.h"

namespace Orva::Plugin {

// The host's event sinks. Each turns an event into one call of the relay and does nothing else.

class CWLMApiInitEventSink final : public CDispatchSink {
public:
    CWLMApiInitEventSink(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log);

private:
    void OnEvent(std::size_t event, const EventArgs& args) override;
    CHostEventRelay& m_relay;
};

class CWLMAApiEventSink final : public CDispatchSink {
public:
    CWLMAApiEventSink(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log);

private:
    void OnEvent(std::size_t event, const EventArgs& args) override;
    CHostEventRelay& m_relay;
};

class CWLMAMailAccountManagerEventSink final : public CDispatchSink {
public:
    CWLMAMailAccountManagerEventSink(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log);

private:
    void OnEvent(std::size_t event, const EventArgs& args) override;
    CHostEventRelay& m_relay;
};

// One entry of the ribbon's drop-down, named by its event index.
class CSubButtonEventSink : public CDispatchSink {
public:
    int32_t Entry() const { return m_entry; }

protected:
    CSubButtonEventSink(const wchar_t* sinkName, int32_t entry, CHostEventRelay& relay,
                        ZelCommon::Library::DebugLog& log);

private:
    void OnEvent(std::size_t event, const EventArgs& args) override;
    int32_t m_entry;
    CHostEventRelay& m_relay;
};

class CSettingBtnEventSink final : public CSubButtonEventSink {
public:
    CSettingBtnEventSink(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log);
};

class CStatisticBtnEventSink final : public CSubButtonEventSink {
public:
    CStatisticBtnEventSink(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log);
};

class COnOffBtnEventSink final : public CSubButtonEventSink {
public:
    COnOffBtnEventSink(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log);
};

class CHelpBtnEventSink final : public CSubButtonEventSink {
public:
    CHelpBtnEventSink(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log);
};

class CAboutBtnEventSink final : public CSubButtonEventSink {
public:
    CAboutBtnEventSink(CHostEventRelay& relay, ZelCommon::Library::DebugLog& log);
};

}  // namespace Orva::Plugin
