#include <QtCore/QFile>
#include <QtTest/QTest>

#include "ConfigurationAndProcessDataParser.h"
#include "JsonDocument.h"
#include "TestProgram.h"
#include "Utf8.h"

/// JsonDocument accepts a document exactly if the parser of the configuration tree does and no name is
/// duplicate: a document that tool and service accept can be loaded by every device.
class JsonStrictnessTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithTheTreeOnDamagedDocuments_data();
    void agreesWithTheTreeOnDamagedDocuments();
    void agreesWithTheTreeOnShippedDocuments();
};

namespace {

/// A document with every element of the syntax.
const QByteArray sample = "\xEF\xBB\xBF{ \"a\\u00e4\\n\": [-0.5e+3, 10, true, false, null, {}, []],\r\n"
                          "\t\"\xC3\xA4\": { \"@x\": \"\\ud83d\\udcc1 \xE2\x82\xAC\" } }\n";

bool isAcceptedByTree(const QByteArray& bytes)
{
    const QString text = QString::fromUtf8(bytes);
    // Conversion replaces invalid bytes, which the tree would then accept in strings.
    const bool isUtf8 = text.toUtf8() == Utf8::withoutByteOrderMark(bytes);
    return isUtf8 && ConfigurationAndProcessDataParser().parseFromJson(text, "json");
}

bool isAcceptedByReader(const QByteArray& bytes)
{
    DocumentProblem problem;
    return JsonDocument::read(bytes, problem) || problem.reason.startsWith("duplicate name");
}

} // namespace

void JsonStrictnessTest::agreesWithTheTreeOnDamagedDocuments_data()
{
    QTest::addColumn<int>("offset");
    for (int offset = 0; offset < sample.size(); ++offset)
        QTest::addRow("byte %d", offset) << offset;
}

void JsonStrictnessTest::agreesWithTheTreeOnDamagedDocuments()
{
    QFETCH(int, offset);
    const auto verify = [](const QByteArray& bytes) {
        QVERIFY2(isAcceptedByReader(bytes) == isAcceptedByTree(bytes),
                 bytes.toPercentEncoding(" ").constData());
    };
    verify(sample);
    verify(sample.left(offset));
    verify(QByteArray(sample).remove(offset, 1));
    for (int byte = 0; byte < 256; ++byte) {
        verify(QByteArray(sample).replace(offset, 1, QByteArray(1, static_cast<char>(byte))));
        verify(QByteArray(sample).insert(offset, static_cast<char>(byte)));
    }
}

void JsonStrictnessTest::agreesWithTheTreeOnShippedDocuments()
{
    for (const char* name : {"units", "default-units", "dependencies"}) {
        QFile file(QStringLiteral(UNITMANAGER_SOURCE_DIR "/config/%1.json").arg(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QByteArray bytes = file.readAll();
        DocumentProblem problem;
        QVERIFY2(JsonDocument::read(bytes, problem), qPrintable(problem.inFile(file.fileName())));
        QVERIFY(isAcceptedByTree(bytes));
    }
}

static const TestClass<JsonStrictnessTest> testClass;
#include "JsonStrictnessTest.moc"
