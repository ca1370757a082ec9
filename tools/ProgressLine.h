#pragma once

#include <QtCore/QString>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

/// A line on the terminal that shows that long work goes on; see Console::showProgress().
///
/// It appears when the work has taken a second, and is erased at its end. There is none unless standard error
/// is a terminal, and none if standard output is a pipe, whose reader may use the same terminal.
class ProgressLine
{
public:
    /// Begins the work. @param text gives what is shown; called in another thread
    explicit ProgressLine(std::function<QString()> text);
    /// Ends the work.
    ~ProgressLine();

    ProgressLine(const ProgressLine&) = delete;
    ProgressLine& operator=(const ProgressLine&) = delete;

private:
    void show();

    const std::function<QString()> m_text;
    std::mutex m_mutex;
    std::condition_variable m_end;
    bool m_isEnded = false;
    std::thread m_thread;
};
