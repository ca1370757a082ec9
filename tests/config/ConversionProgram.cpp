#include "ConversionProgram.h"

#include <QtCore/QLocale>
#include <QtCore/QProcess>
#include <QtCore/QProcessEnvironment>

#include <utility>

#include "WaitLimit.h"

namespace {

/// Prevents a locale or a personal units file from changing the programs' results.
QProcessEnvironment plainEnvironment()
{
    QProcessEnvironment environment;
    environment.insert(QStringLiteral("PATH"), qEnvironmentVariable("PATH"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C"));
    return environment;
}

} // namespace

ConversionProgram::ConversionProgram(QString command, QStringList arguments)
    : m_command(std::move(command)), m_arguments(std::move(arguments))
{}

ConversionProgram::~ConversionProgram() = default;

bool ConversionProgram::isAnswerable(const Conversion&) const
{
    return true;
}

QVector<double> ConversionProgram::deviations(const QVector<Conversion>& conversions, QString* error) const
{
    QString input;
    for (const Conversion& conversion : conversions)
        input += query(conversion);
    const QString output = run(input, error);
    if (!error->isEmpty())
        return {};

    const QStringList texts = answers(output);
    if (texts.size() != conversions.size()) {
        *error = QStringLiteral("%1 answers to %2 queries").arg(texts.size()).arg(conversions.size());
        return {};
    }
    QVector<double> result;
    for (int i = 0; i < texts.size(); ++i) {
        bool ok = false;
        result.append(deviation(texts.at(i), conversions.at(i), &ok));
        if (!ok) {
            *error = query(conversions.at(i)) + QStringLiteral("gives ") + texts.at(i);
            return {};
        }
    }
    return result;
}

QString ConversionProgram::numberText(double number)
{
    return QString::number(number, 'e', QLocale::FloatingPointShortest);
}

QString ConversionProgram::run(const QString& input, QString* error) const
{
    QProcess process;
    process.setProcessEnvironment(plainEnvironment());
    process.start(m_command, m_arguments);
    process.write(input.toUtf8());
    process.closeWriteChannel();
    if (!process.waitForFinished(waitLimit)) {
        *error = m_command + QStringLiteral(": ") + process.errorString();
        return {};
    }
    if (process.exitStatus() != QProcess::NormalExit || process.exitCode() != 0)
        *error = m_command + QStringLiteral(" failed: ") + QString::fromUtf8(process.readAllStandardError());
    return QString::fromUtf8(process.readAllStandardOutput());
}
