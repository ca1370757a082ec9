#include "PeakMemory.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QFile>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <cstdio>
#include <malloc.h>

#include "ChildProcess.h"
#include "Documents.h"
#include "WaitLimit.h"

namespace {

const double bytesPerKilobyte = 1024.0;

/// Reads a line "VmHWM:   1234 kB" of this process's status. @return bytes, 0 if there is no such line
double statusBytes(const QByteArray& name)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return 0.0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith(name + ':'))
            return line.simplified().split(' ').value(1).toDouble() * bytesPerKilobyte;
    }
    return 0.0;
}

/// Releases free memory and resets the peak. @return the resident bytes now
double startFromHere()
{
    ::malloc_trim(0);
    QFile references(QStringLiteral("/proc/self/clear_refs"));
    if (!references.open(QIODevice::WriteOnly | QIODevice::Unbuffered) || references.write("5") != 1)
        return 0.0;
    return statusBytes("VmRSS");
}

/// The bytes that the program has allocated and not freed.
double heapBytes()
{
    const struct mallinfo2 heap = ::mallinfo2();
    return static_cast<double>(heap.uordblks + heap.hblkhd);
}

/// Runs @p load, which returns whether it succeeded, and prints its memory use. @return the exit code
template <typename Load>
int report(const Load& load)
{
    const double heapBefore = heapBytes();
    const double before = startFromHere();
    const bool isRight = load();
    const double peak = statusBytes("VmHWM");
    if (!isRight || before == 0.0 || peak < before)
        return 1;
    std::printf("%.0f %.0f\n", peak - before, heapBytes() - heapBefore);
    return 0;
}

int loadManager(int unitCount)
{
    const QString text = Documents::generatedUnits(unitCount);
    UnitManager manager;
    manager.initByJsonString(Documents::shippedUnits(), Documents::shippedDefaultUnits());
    return report([&] {
        return manager.initByJsonString(text, QString()) && Documents::unitCount(manager) == unitCount;
    });
}

int parseByQt(int unitCount)
{
    const QByteArray text = Documents::generatedUnits(unitCount).toUtf8();
    QJsonDocument document;
    return report([&] {
        document = QJsonDocument::fromJson(text);
        return !document.object().isEmpty();
    });
}

} // namespace

namespace PeakMemory {

bool measure(const QString& loader, int unitCount, Figures& figures)
{
    ChildProcess process;
    process.start(QCoreApplication::applicationFilePath(),
                  {QStringLiteral("--peak-memory"), loader, QString::number(unitCount)});
    if (!process.waitForFinished(waitLimit) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != 0)
        return false;
    const QList<QByteArray> numbers = process.readAllStandardOutput().trimmed().split(' ');
    figures.peakBytes = numbers.value(0).toDouble();
    figures.keptBytes = numbers.value(1).toDouble();
    return numbers.size() == 2;
}

int runProcess(const QStringList& arguments)
{
    const int unitCount = arguments.value(1).toInt();
    return arguments.value(0) == QLatin1String("qt") ? parseByQt(unitCount) : loadManager(unitCount);
}

} // namespace PeakMemory
