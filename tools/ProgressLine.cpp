#include "ProgressLine.h"

#include <chrono>
#include <utility>

#include "Console.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::milliseconds delay(1000);
constexpr std::chrono::milliseconds interval(200);

} // namespace

ProgressLine::ProgressLine(std::function<QString()> text) : m_text(std::move(text))
{
    if (Console::canShowProgress())
        m_thread = std::thread([this] { show(); });
}

ProgressLine::~ProgressLine()
{
    if (!m_thread.joinable())
        return;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isEnded = true;
    }
    m_end.notify_one();
    m_thread.join();
    Console::eraseProgress();
}

void ProgressLine::show()
{
    const Clock::time_point start = Clock::now();
    Clock::time_point next = start + delay;
    std::unique_lock<std::mutex> lock(m_mutex);
    while (!m_end.wait_until(lock, next, [this] { return m_isEnded; })) {
        const auto seconds = std::chrono::duration_cast<std::chrono::seconds>(Clock::now() - start);
        Console::showProgress(m_text() + QString(", %1 s").arg(seconds.count()));
        next = Clock::now() + interval;
    }
}
