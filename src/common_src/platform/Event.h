#pragma once

#include <cstdint>
#include <memory>

namespace ZelCommon::Platform {

// An auto-reset event, unsignalled at first: a wait that succeeds consumes the signal.
class IEvent {
public:
    virtual ~IEvent() = default;
    virtual void Set() = 0;
    // True when the event was signalled within `milliseconds`.
    virtual bool Wait(uint32_t milliseconds) = 0;
};

// Each call makes a new event of its own; an event that could not be created never signals.
std::unique_ptr<IEvent> CreateAutoResetEvent();

}  // namespace ZelCommon::Platform
