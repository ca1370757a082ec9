#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// Memory of a load, measured in a process of its own. The peak is what the system sees: the pages that the
/// process holds at most (VmHWM of /proc/self/status, set back before the load), less those before. Kept is
/// what the allocator has given out after the load, less that before. The text to load is there before.
namespace PeakMemory {

struct Figures
{
    double peakBytes = 0.0;
    double keptBytes = 0.0;
};

/// Starts this program for one load of a generated document of @p unitCount units.
///
/// @param loader "manager" for the library, "qt" for Qt's own parser
/// @return false when the process failed or what it loaded was wrong
bool measure(const QString& loader, int unitCount, Figures& figures);

/// What that process does: loads and prints the figures. @return the exit code
int runProcess(const QStringList& arguments);

} // namespace PeakMemory
