#include "SimulatedMessageLoop.h"

#include <utility>

namespace Orva::Sim {

void SimulatedMessageLoop::Post(std::function<void()> delivery) {
    m_queue.push_back(std::move(delivery));
}

std::size_t SimulatedMessageLoop::RunPending() {
    std::size_t ran = 0;
    while (!m_queue.empty()) {
        // Taken off first: the delivery may post more.
        std::function<void()> delivery = std::move(m_queue.front());
        m_queue.pop_front();
        delivery();
        ++ran;
    }
    return ran;
}

}  // namespace Orva::Sim
