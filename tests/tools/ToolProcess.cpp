#include "ToolProcess.h"

#include <QtCore/QFile>
#include <QtCore/QTextCodec>

#include "WaitLimit.h"

QProcessEnvironment ToolProcess::plainEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("QT_HASH_SEED");
    environment.insert("LANGUAGE", "en");
    // For the leak check of an instrumented program.
    environment.insert("LSAN_OPTIONS", "suppressions=" + testData("leaks.supp") + ":print_suppressions=0");
    return environment;
}

QString ToolProcess::path()
{
    return QStringLiteral(UNITMANAGER_TOOL);
}

QString ToolProcess::testData(const QString& name)
{
    return UNITMANAGER_TEST_DATA "/" + name;
}

QStringList ToolProcess::testDocuments()
{
    return {"--units", testData("units.json"), "--default-units", testData("default-units.json")};
}

ToolRun ToolProcess::run(const QStringList& arguments, const QByteArray& standardInput,
                         const QProcessEnvironment& environment)
{
    return runProgram(path(), arguments, standardInput, environment);
}

ToolRun ToolProcess::runProgram(const QString& program, const QStringList& arguments,
                                const QByteArray& standardInput, const QProcessEnvironment& environment)
{
    // Pass arguments as UTF-8, regardless of the locale of the test.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    process.write(standardInput);
    process.closeWriteChannel();
    if (!process.waitForFinished(waitLimit))
        return {-1, {}, process.errorString().toUtf8()};
    const bool isRegularEnd = process.exitStatus() == QProcess::NormalExit;
    return {isRegularEnd ? process.exitCode() : -1, process.readAllStandardOutput(),
            process.readAllStandardError()};
}

qint64 ToolProcess::statusNumber(qint64 processId, const QByteArray& key)
{
    QFile status(QStringLiteral("/proc/%1/status").arg(processId));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith(key + ':'))
            return line.mid(key.size() + 1).simplified().split(' ').first().toLongLong();
    }
    return -1;
}
