#pragma once

#include <QtCore/QString>
#include <QtCore/QStringList>

/// Memory of a load, measured in a separate process. The peak is the maximum of resident memory (VmHWM of
/// /proc/self/status, reset before the load), minus the resident memory before. The kept memory is what is
/// allocated after the load, minus what was allocated before. The text to load is in memory before.
namespace PeakMemory {

struct Figures
{
    double peakBytes = 0.0;
    double keptBytes = 0.0;
};

/// Runs this program for one load of a generated document of @p unitCount units.
///
/// @param loader "manager" for the library, "qt" for Qt's own parser
/// @return false if the process failed or the loaded data were wrong
bool measure(const QString& loader, int unitCount, Figures& figures);

/// The main function of that process: loads and prints the figures. @return the exit code
int runProcess(const QStringList& arguments);

} // namespace PeakMemory
