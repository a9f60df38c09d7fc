#pragma once

#include <cstddef>
#include <deque>
#include <functional>

namespace Orva::Sim {

// The mail client's GUI thread queue: posted messages wait here until the loop runs them, in
// the order they were posted; a message posted while the loop runs is run in the same turn.
class SimulatedMessageLoop {
public:
    void Post(std::function<void()> delivery);
    // Runs every waiting message; returns how many ran.
    std::size_t RunPending();
    bool IsIdle() const { return m_queue.empty(); }

private:
    std::deque<std::function<void()>> m_queue;
};

}  // namespace Orva::Sim
