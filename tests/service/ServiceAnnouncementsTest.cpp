#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtTest/QTest>

#include <csignal>
#include <functional>

#include "Row.h"
#include "ServedDirectory.h"
#include "ServiceDocuments.h"
#include "TestFiles.h"
#include "TestProgram.h"
#include "WaitLimit.h"

using Action = std::function<bool(const ServedDirectory& served, const QByteArray& text)>;
Q_DECLARE_METATYPE(Action)

namespace {

bool removeAndWrite(const ServedDirectory& served, const QByteArray& text)
{
    return QFile::remove(served.path("units.json")) && TestFiles::write(served.path("units.json"), text);
}

bool overwriteInPlace(const ServedDirectory& served, const QByteArray& text)
{
    return TestFiles::write(served.path("units.json"), text);
}

bool replace(const ServedDirectory& served, const QByteArray& text)
{
    return TestFiles::replace(served.path("units.json"), text);
}

bool writeInPieces(const ServedDirectory& served, const QByteArray& text)
{
    QFile file(served.path("units.json"));
    bool isWritten = file.open(QIODevice::WriteOnly);
    for (const char byte : text)
        isWritten = isWritten && file.putChar(byte) && file.flush();
    return isWritten;
}

bool linkToAnotherFile(const ServedDirectory& served, const QByteArray& text)
{
    return TestFiles::write(served.path("units of another name"), text) &&
           TestFiles::link("units of another name", served.path("units.json"));
}

/// A directory with @p text as units and copies of the other two documents.
bool fillDirectory(const ServedDirectory& served, const QString& path, const QByteArray& text)
{
    return QDir().mkpath(path) && TestFiles::write(path + "/units.json", text) &&
           QFile::copy(served.path("default-units.json"), path + "/default-units.json") &&
           QFile::copy(served.path("dependencies.json"), path + "/dependencies.json");
}

bool exchangeDirectory(const ServedDirectory& served, const QByteArray& text)
{
    const QString path = served.directory();
    return fillDirectory(served, path + ".next", text) && QDir().rename(path, path + ".before") &&
           QDir().rename(path + ".next", path);
}

bool recreateDirectory(const ServedDirectory& served, const QByteArray& text)
{
    const QString path = served.directory();
    return fillDirectory(served, path + ".next", text) && QDir(path).removeRecursively() &&
           QDir().mkdir(path) && QFile::copy(path + ".next/dependencies.json", path + "/dependencies.json") &&
           TestFiles::write(path + "/units.json", text);
}

bool linkToAnotherDirectory(const ServedDirectory& served, const QByteArray& text)
{
    const QString path = served.directory();
    return fillDirectory(served, path + ".next", text) && QDir().rename(path, path + ".before") &&
           TestFiles::link("documents.next", path);
}

} // namespace

/// When the program announces a change of a document, and when it does not.
class ServiceAnnouncementsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void changeIsAnnouncedOnce_data();
    void changeIsAnnouncedOnce();
    void eachDocumentIsAnnouncedByItsObject();
    void swappedVersionsAreAnnounced();
    void sameTextIsNotAnnounced_data();
    void sameTextIsNotAnnounced();
    void burstIsAnnouncedOnce();
    void everyFurtherChangeIsAnnounced();
};

void ServiceAnnouncementsTest::changeIsAnnouncedOnce_data()
{
    QTest::addColumn<Action>("change");

    QTest::newRow("written in place") << Action(overwriteInPlace);
    QTest::newRow("written in place, piece by piece") << Action(writeInPieces);
    QTest::newRow("replaced by another file") << Action(replace);
    QTest::newRow("removed and written") << Action(removeAndWrite);
    QTest::newRow("replaced by a link") << Action(linkToAnotherFile);
    QTest::newRow("directory exchanged") << Action(exchangeDirectory);
    QTest::newRow("directory removed and recreated") << Action(recreateDirectory);
    QTest::newRow("directory replaced by a link") << Action(linkToAnotherDirectory);
}

void ServiceAnnouncementsTest::changeIsAnnouncedOnce()
{
    QFETCH(Action, change);
    ServedDirectory served;
    QVERIFY(served.start());

    const QByteArray next = ServiceDocuments::units("next");
    QVERIFY(change(served, next));
    QTRY_COMPARE_WITH_TIMEOUT(served.client().text(ServiceObject::units), QString(next), waitLimit);
    QCOMPARE(served.settledAnnouncements(), QStringList{ServiceAnnouncement::units});

    // The file is still watched, regardless of how it was changed.
    const QByteArray last = ServiceDocuments::units("last");
    QVERIFY(overwriteInPlace(served, last));
    QTRY_COMPARE_WITH_TIMEOUT(served.client().text(ServiceObject::units), QString(last), waitLimit);
    QCOMPARE(served.settledAnnouncements(), QStringList{ServiceAnnouncement::units});
}

void ServiceAnnouncementsTest::eachDocumentIsAnnouncedByItsObject()
{
    ServedDirectory served;
    QVERIFY(served.start());

    QVERIFY(TestFiles::replace(served.path("default-units.json"), ServiceDocuments::defaultUnits("next")));
    QCOMPARE(served.settledAnnouncements(), QStringList{ServiceAnnouncement::defaultUnits});
    QCOMPARE(served.client().text(ServiceObject::defaultUnits),
             QString(ServiceDocuments::defaultUnits("next")));

    QVERIFY(TestFiles::replace(served.path("dependencies.json"), ServiceDocuments::dependencies("next")));
    QTRY_COMPARE_WITH_TIMEOUT(served.client().text(ServiceObject::dependencies),
                              QString(ServiceDocuments::dependencies("next")), waitLimit);
    QTRY_COMPARE_WITH_TIMEOUT(served.client().announcements().last(), ServiceAnnouncement::dependencies,
                              waitLimit);
}

// The documents are reached through a symbolic link that is switched from one version to the next.
void ServiceAnnouncementsTest::swappedVersionsAreAnnounced()
{
    ServedDirectory served;
    QVERIFY(fillDirectory(served, served.path("..1"), ServiceDocuments::units("one")));
    QVERIFY(fillDirectory(served, served.path("..2"), ServiceDocuments::units("two")));
    QVERIFY(TestFiles::link("..1", served.path("..data")));
    QVERIFY(TestFiles::link("..data/units.json", served.path("units.json")));
    QVERIFY(served.start());
    QCOMPARE(served.client().text(ServiceObject::units), QString(ServiceDocuments::units("one")));

    QVERIFY(TestFiles::link("..2", served.path("..data")));
    QTRY_COMPARE_WITH_TIMEOUT(served.client().text(ServiceObject::units),
                              QString(ServiceDocuments::units("two")), waitLimit);
    QVERIFY(QDir(served.path("..1")).removeRecursively());
    QCOMPARE(served.settledAnnouncements(), QStringList{ServiceAnnouncement::units});

    QVERIFY(TestFiles::write(served.path("..2/units.json"), ServiceDocuments::units("two, corrected")));
    QTRY_COMPARE_WITH_TIMEOUT(served.client().text(ServiceObject::units),
                              QString(ServiceDocuments::units("two, corrected")), waitLimit);
    QCOMPARE(served.settledAnnouncements(), QStringList{ServiceAnnouncement::units});
}

void ServiceAnnouncementsTest::sameTextIsNotAnnounced_data()
{
    QTest::addColumn<Action>("action");

    row("touched", Action([](const ServedDirectory& served, const QByteArray&) {
            QFile file(served.path("units.json"));
            return file.open(QIODevice::Append) &&
                   file.setFileTime(QDateTime::currentDateTime(), QFileDevice::FileModificationTime);
        }));
    row("written in place", Action(overwriteInPlace));
    row("replaced by another file", Action(replace));
    row("removed and written", Action(removeAndWrite));
    row("directory exchanged", Action(exchangeDirectory));
    row("with a byte order mark", Action([](const ServedDirectory& served, const QByteArray& text) {
            return replace(served, "\xEF\xBB\xBF" + text);
        }));
    row("file beside it", Action([](const ServedDirectory& served, const QByteArray& text) {
            return TestFiles::write(served.path("units.json~"), text + ' ');
        }));
}

void ServiceAnnouncementsTest::sameTextIsNotAnnounced()
{
    QFETCH(Action, action);
    ServedDirectory served;
    QVERIFY(served.start());

    const QByteArray text = ServiceDocuments::units("first");
    QVERIFY(action(served, text));
    QCOMPARE(served.settledAnnouncements(), QStringList());
    QCOMPARE(served.client().text(ServiceObject::units), QString(text));
}

void ServiceAnnouncementsTest::burstIsAnnouncedOnce()
{
    ServedDirectory served;
    QVERIFY(served.start());

    // Stop the service, so that it receives the whole burst at once even if the machine is busy.
    QVERIFY(served.service().send(SIGSTOP));
    for (int count = 1; count <= 50; ++count)
        QVERIFY(
            TestFiles::replace(served.path("units.json"), ServiceDocuments::units(QString::number(count))));
    QVERIFY(served.service().send(SIGCONT));

    QTRY_COMPARE_WITH_TIMEOUT(served.client().text(ServiceObject::units),
                              QString(ServiceDocuments::units("50")), waitLimit);
    QCOMPARE(served.settledAnnouncements(), QStringList{ServiceAnnouncement::units});
}

void ServiceAnnouncementsTest::everyFurtherChangeIsAnnounced()
{
    ServedDirectory served;
    QVERIFY(served.start());

    for (const char* label : {"second", "third", "first"}) {
        QVERIFY(TestFiles::replace(served.path("units.json"), ServiceDocuments::units(label)));
        QCOMPARE(served.settledAnnouncements(), QStringList{ServiceAnnouncement::units});
        QCOMPARE(served.client().text(ServiceObject::units), QString(ServiceDocuments::units(label)));
    }
}

static const TestClass<ServiceAnnouncementsTest> testClass;
#include "ServiceAnnouncementsTest.moc"
