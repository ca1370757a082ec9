#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include <algorithm>
#include <csignal>
#include <sys/mman.h>

#include "DocumentFile.h"
#include "ServedDirectory.h"
#include "ServiceDocuments.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "WaitLimit.h"
#include "WaitUntil.h"

/// How the program reads its documents.
class ServiceReadingTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void hangUpRereadsTheDocuments();
    void stalledReadDelaysNoAnswer();
    void stalledReadDelaysNoEnd();
    void stallAtTheStartDelaysNoEnd();
    void closedLogDoesNotEndIt();
    void largeDocumentIsServedIfAllowed();
    void missingDirectoryIsReported();
    void documentOfTheFirstDirectoryIsServed();
};

namespace {

/// Replaces a text in a file of a mapped page, which no watcher notices. Both have the same length.
bool changeUnnoticed(const QString& path, const QByteArray& before, const QByteArray& after)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadWrite))
        return false;
    const auto size = static_cast<std::size_t>(file.size());
    void* const page = ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_SHARED, file.handle(), 0);
    if (page == MAP_FAILED)
        return false;
    auto* const bytes = static_cast<char*>(page);
    const int offset = QByteArray::fromRawData(bytes, static_cast<int>(size)).indexOf(before);
    if (offset >= 0)
        std::copy(after.begin(), after.end(), bytes + offset);
    return ::munmap(page, size) == 0 && offset >= 0;
}

/// The file whose existence stalls the service's reads of the unit document, see StalledReads.cpp.
QString stallFile(ServedDirectory& served)
{
    return served.bus().directory() + "/stall";
}

/// Makes the reads of the service stallable. Call before it is started.
void makeStallable(ServedDirectory& served)
{
    served.service().setVariable("LD_PRELOAD", STALLED_READS);
    served.service().setVariable("STALL_FILE", stallFile(served));
    // AddressSanitizer refuses to run after another preloaded library.
    served.service().setVariable("ASAN_OPTIONS",
                                 qEnvironmentVariable("ASAN_OPTIONS") + ":verify_asan_link_order=0");
}

/// Waits until the service is stuck in reading the unit document.
bool isStalled(ServedDirectory& served)
{
    return waitUntil([&served] { return QFile::exists(stallFile(served) + ".reached"); });
}

/// Changes the unit document and waits until the service is stuck in reading it.
bool stall(ServedDirectory& served)
{
    return TestFiles::write(stallFile(served), "") &&
           TestFiles::replace(served.path("units.json"), ServiceDocuments::units("next")) &&
           isStalled(served);
}

} // namespace

void ServiceReadingTest::hangUpRereadsTheDocuments()
{
    ServedDirectory served;
    QVERIFY(served.start());
    QVERIFY(changeUnnoticed(served.path("units.json"), "first", "other"));
    QVERIFY(served.service().send(SIGHUP));
    QTRY_COMPARE_WITH_TIMEOUT(served.client().announcements(), QStringList{ServiceAnnouncement::units},
                              waitLimit);
    QCOMPARE(served.client().text(ServiceObject::units), QString(ServiceDocuments::units("other")));
}

void ServiceReadingTest::stalledReadDelaysNoAnswer()
{
    ServedDirectory served;
    makeStallable(served);
    QVERIFY(served.start());
    QVERIFY(stall(served));
    QCOMPARE(served.client().text(ServiceObject::units), QString(ServiceDocuments::units("first")));
    QCOMPARE(served.client().text(ServiceObject::defaultUnits),
             QString(ServiceDocuments::defaultUnits("first")));

    QVERIFY(QFile::remove(stallFile(served)));
    QTRY_COMPARE_WITH_TIMEOUT(served.client().announcements(), QStringList{ServiceAnnouncement::units},
                              waitLimit);
    QCOMPARE(served.client().text(ServiceObject::units), QString(ServiceDocuments::units("next")));
}

void ServiceReadingTest::stalledReadDelaysNoEnd()
{
    ServedDirectory served;
    makeStallable(served);
    QVERIFY(served.start());
    QVERIFY(stall(served));
    QVERIFY(served.service().send(SIGTERM));
    QCOMPARE(served.service().waitForEnd(), 0);
    QVERIFY(QFile::exists(stallFile(served)));
}

void ServiceReadingTest::stallAtTheStartDelaysNoEnd()
{
    ServedDirectory served;
    makeStallable(served);
    QVERIFY(served.bus().start());
    QVERIFY(TestFiles::write(stallFile(served), ""));
    served.service().launch({"--directory", served.directory(), "--bus", served.bus().address()});
    QVERIFY(isStalled(served));
    QVERIFY(served.service().send(SIGTERM));
    QCOMPARE(served.service().waitForEnd(), 0);
    // Without documents the service never owned its name.
    QCOMPARE(served.service().output(), QString());
}

void ServiceReadingTest::closedLogDoesNotEndIt()
{
    ServedDirectory served;
    QVERIFY(served.start());
    served.service().closeLog();
    // Both are logged.
    QVERIFY(TestFiles::replace(served.path("units.json"), "{"));
    QCOMPARE(served.settledAnnouncements(), QStringList());
    QVERIFY(TestFiles::replace(served.path("units.json"), ServiceDocuments::units("next")));
    QCOMPARE(served.settledAnnouncements(), QStringList{ServiceAnnouncement::units});
    QCOMPARE(served.client().text(ServiceObject::units), QString(ServiceDocuments::units("next")));
}

void ServiceReadingTest::largeDocumentIsServedIfAllowed()
{
    ServedDirectory served;
    QVERIFY(served.bus().start());
    const int size = 2 * DocumentFile::defaultLimit;
    const QByteArray text = ServiceDocuments::units("large").leftJustified(size);
    QVERIFY(TestFiles::write(served.path("units.json"), text));

    ServiceProcess service;
    QVERIFY(service.start({"--directory", served.directory(), "--bus", served.bus().address(), "--max-size",
                           QString::number(size)}));
    const ServiceClient client(served.bus().address());
    QCOMPARE(client.text(ServiceObject::units), QString(text));
    QVERIFY(TestFiles::write(served.path("units.json"), text + ' '));
    QTRY_VERIFY2_WITH_TIMEOUT(
        service.log().endsWith("units.json: is larger than the limit of 2097152 bytes; see --max-size; "
                               "keeping the last valid document\n"),
        qPrintable(service.log()), waitLimit);
}

void ServiceReadingTest::missingDirectoryIsReported()
{
    ServedDirectory served;
    QVERIFY(QDir(served.directory()).removeRecursively());
    QVERIFY(served.start());
    const QString message = ": no such directory: " + served.directory() + "; no document to serve\n";
    QTRY_COMPARE_WITH_TIMEOUT(served.service().log().count(message), 3, waitLimit);
}

// The first directory holds the product's own documents, the second one the shipped documents.
void ServiceReadingTest::documentOfTheFirstDirectoryIsServed()
{
    ServedDirectory served;
    QVERIFY(served.bus().start());
    const QTemporaryDir product;
    ServiceProcess service;
    QVERIFY(service.start(
        {"--directory", product.path(), "--directory", served.directory(), "--bus", served.bus().address()}));
    QCOMPARE(service.output().section(" as ", 0, 0), "serving " + product.path() + ", " + served.directory());
    const ServiceClient client(served.bus().address());
    QCOMPARE(client.text(ServiceObject::units), QString(ServiceDocuments::units("first")));

    QVERIFY(TestFiles::write(product.filePath("units.json"), ServiceDocuments::units("own")));
    QTRY_COMPARE_WITH_TIMEOUT(client.text(ServiceObject::units), QString(ServiceDocuments::units("own")),
                              waitLimit);
    QCOMPARE(client.text(ServiceObject::defaultUnits), QString(ServiceDocuments::defaultUnits("first")));

    // An upgrade changes shipped documents only.
    QVERIFY(TestFiles::replace(served.path("units.json"), ServiceDocuments::units("upgraded")));
    QVERIFY(
        TestFiles::replace(served.path("default-units.json"), ServiceDocuments::defaultUnits("upgraded")));
    QTRY_COMPARE_WITH_TIMEOUT(client.text(ServiceObject::defaultUnits),
                              QString(ServiceDocuments::defaultUnits("upgraded")), waitLimit);
    QCOMPARE(client.text(ServiceObject::units), QString(ServiceDocuments::units("own")));

    QVERIFY(QFile::remove(product.filePath("units.json")));
    QTRY_COMPARE_WITH_TIMEOUT(client.text(ServiceObject::units), QString(ServiceDocuments::units("upgraded")),
                              waitLimit);
}

static const TestClass<ServiceReadingTest> testClass;

#include "ServiceReadingTest.moc"
