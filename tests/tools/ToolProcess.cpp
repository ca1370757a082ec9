#include "ToolProcess.h"

#include <QtCore/QTextCodec>

namespace {

const int longestRunMilliseconds = 120000;

} // namespace

QProcessEnvironment ToolProcess::plainEnvironment()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.remove("QT_HASH_SEED");
    environment.insert("LANGUAGE", "en");
    return environment;
}

QString ToolProcess::path()
{
    return QStringLiteral(UNITMANAGER_TOOL);
}

QStringList ToolProcess::testDocuments()
{
    return {"--units", UNITMANAGER_TEST_DATA "/units.json", "--default-units",
            UNITMANAGER_TEST_DATA "/default-units.json"};
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
    if (!process.waitForFinished(longestRunMilliseconds))
        return {-1, {}, process.errorString().toUtf8()};
    const bool isRegularEnd = process.exitStatus() == QProcess::NormalExit;
    return {isRegularEnd ? process.exitCode() : -1, process.readAllStandardOutput(),
            process.readAllStandardError()};
}
