#pragma once

#include <cstdint>

#include "common_src/platform/WindowMessaging.h"
#include "lists/ListChangeNotifier.h"

namespace Orva::Plugin {

// Tells the agent that it should reread the list files, once they are written: a post to its
// window when the window exists. An agent that is not running reads the files when it starts.
class CAgentListNotifier final : public Lists::IListChangeNotifier {
public:
    explicit CAgentListNotifier(ZelCommon::Platform::IWindowMessaging& messaging =
                                    ZelCommon::Platform::SystemWindowMessaging());

    void SenderListsChanged() override;
    void EncodingsChanged() override;

private:
    void PostToAgent(uint32_t message);

    ZelCommon::Platform::IWindowMessaging& m_messaging;
};

}  // namespace Orva::Plugin
