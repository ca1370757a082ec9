#include <QtCore/QCryptographicHash>
#include <QtCore/QFile>
#include <QtCore/QtEndian>
#include <QtTest/QTest>

#include <cmath>

#include "ConversionResults.h"
#include "DoubleBits.h"
#include "ShippedCatalogue.h"
#include "TestFiles.h"
#include "TestProgram.h"

using namespace ConversionResults;

/// Compares the results of the shipped conversions, bit by bit, with the recorded ones, which are those of
/// every processor.
///
/// With UPDATE_RECORDS=1 in the environment the test rewrites the record: commit its difference with its
/// reason.
class ConversionResultsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sameResultsOnEveryProcessor();
};

namespace {

/// The sign of a NaN that an operation on an infinity creates depends on the processor: it is cleared.
double withoutProcessorsSign(double number, double result)
{
    return std::isinf(number) && std::isnan(result) ? std::abs(result) : result;
}

/// The name, the results of the landmarks, and a checksum of the bits of all results.
QByteArray recordLine(const UnitName& name, const Form& form, const Numbers& results)
{
    QByteArray line = form.name + (' ' + name.unitType.toUtf8()) + ' ' + name.unit.toUtf8() + ':';
    std::vector<quint64> bits;
    for (std::size_t index = 0; index < results.size(); ++index) {
        const double result = withoutProcessorsSign(numbers()[index], results[index]);
        bits.push_back(qToLittleEndian(bitsOf(result)));
        if (index < landmarkCount)
            line += ' ' + hexadecimal(result);
    }
    const QByteArray bytes(reinterpret_cast<const char*>(bits.data()), int(bits.size() * sizeof(quint64)));
    return line + ' ' + QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex();
}

QList<QByteArray> recordLines(const UnitManager& units)
{
    QList<QByteArray> lines;
    for (const UnitName& name : unitNames(units)) {
        for (const Form& form : forms())
            lines.append(recordLine(name, form, form.results(units, name, numbers())));
    }
    return lines;
}

} // namespace

void ConversionResultsTest::sameResultsOnEveryProcessor()
{
    const ShippedCatalogue catalogue;
    QVERIFY(catalogue.isLoaded());
    const QList<QByteArray> actual = recordLines(catalogue.manager());
    const QString path = QStringLiteral(UNITMANAGER_TEST_DATA "/conversion-results.txt");
    if (qEnvironmentVariableIsSet("UPDATE_RECORDS"))
        QVERIFY(TestFiles::write(path, actual.join('\n') + '\n'));

    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QList<QByteArray> expected = file.readAll().trimmed().split('\n');
    // 47 units by two names each, ten default units, twelve forms.
    QCOMPARE(expected.size(), (2 * 47 + 10) * 12);
    QCOMPARE(actual.size(), expected.size());
    for (int index = 0; index < expected.size(); ++index)
        QCOMPARE(actual.at(index), expected.at(index));
}

static const TestClass<ConversionResultsTest> testClass;

#include "ConversionResultsTest.moc"
