#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtTest/QTest>

#include <algorithm>

#include "BehaviourDocuments.h"
#include "BehaviourTable.h"
#include "LogCapture.h"
#include "MessageText.h"
#include "RecordedCalls.h"
#include "TestProgram.h"

namespace {

#ifdef UNITMANAGER_RECORDS_QUERIES
const bool recordsQueries = true;
#else
const bool recordsQueries = false;
#endif

const QString queriesMark = QStringLiteral("  asks: ");

/// Messages by a short name that does not depend on the other messages.
using MessageNames = QMap<QString, QString>;

QString nameOf(const QString& message, MessageNames& names)
{
    const QString name = QString::number(qHash(message, 0), 16).rightJustified(8, QLatin1Char('0'));
    names.insert(name, message);
    return name;
}

/// The catalogue's line numbers are part of the interface; the others change when a source is edited.
LineNumbers lineNumbersOf(const LoggedMessage& message)
{
    return message.file.startsWith(QLatin1String("UnitConversion/UnitConversion")) ? LineNumbers::Exact
                                                                                   : LineNumbers::Any;
}

/// The effects of a row, one per line.
QStringList run(const BehaviourRow& row, MessageNames& names)
{
    RecordedCalls::takeCalls();
    RecordedCalls::takeQueries();
    LogCapture log;
    const QString result = row.operation();

    QStringList lines = {row.name + QLatin1String(" -> ") + result};
    QStringList logged;
    for (const LoggedMessage& message : log.take())
        logged.append(nameOf(messageTexts({message}, lineNumbersOf(message)).first(), names));
    if (!logged.isEmpty())
        lines.append(QLatin1String("  logs: ") + logged.join(QLatin1Char(' ')));
    const QStringList calls = RecordedCalls::takeCalls();
    if (!calls.isEmpty())
        lines.append(QLatin1String("  calls: ") + calls.join(QLatin1String("; ")));
    const QStringList queries = RecordedCalls::takeQueries();
    if (!queries.isEmpty())
        lines.append(queriesMark + queries.join(QLatin1Char(' ')));
    return lines;
}

QStringList runAll()
{
    // The library may query the marker once per process.
    BehaviourDocuments::managers().first().manager.fromBaseUnit(1.0, QString(), QString());

    QStringList lines;
    MessageNames names;
    for (const BehaviourRow& row : valueRows() + nodeRows() + arrayRows())
        lines.append(run(row, names));
    for (auto name = names.cbegin(); name != names.cend(); ++name)
        lines.append(name.key() + QLatin1String(": ") + name.value());
    return lines;
}

QStringList readLines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    if (!recordsQueries)
        lines.erase(std::remove_if(lines.begin(), lines.end(),
                                   [](const QString& line) { return line.startsWith(queriesMark); }),
                    lines.end());
    return lines;
}

bool writeLines(const QString& path, const QStringList& lines)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write((lines.join(QLatin1Char('\n')) + '\n').toUtf8()) > 0;
}

} // namespace

/// Runs the whole table and compares results, messages and calls to the platform with the recorded ones.
///
/// With UPDATE_RECORDS=1 in the environment the test rewrites the records: commit their difference with its
/// reason.
class ConversionBehaviourTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void behavesAsRecorded();
};

void ConversionBehaviourTest::behavesAsRecorded()
{
    const QString marker = qEnvironmentVariable("NO_INPUT_MARKER");
    QVERIFY2(!marker.isEmpty(), "NO_INPUT_MARKER selects the record");
    const QString path = QStringLiteral(UNITMANAGER_TEST_DATA "/marker-%1.txt").arg(marker);
    const QStringList actual = runAll();
    if (recordsQueries && qEnvironmentVariableIsSet("UPDATE_RECORDS"))
        QVERIFY(writeLines(path, actual));

    const QStringList expected = readLines(path);
    QVERIFY2(expected.size() > 1000, qPrintable(path));
    for (int i = 0; i < std::min(actual.size(), expected.size()); ++i)
        QCOMPARE(actual.at(i), expected.at(i));
    QCOMPARE(actual.size(), expected.size());
}

static const TestClass<ConversionBehaviourTest> testClass;

#include "ConversionBehaviourTest.moc"
