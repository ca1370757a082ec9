#include "PathTrail.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QTest>

#include "Row.h"
#include "TestFiles.h"
#include "TestProgram.h"

namespace {

QStringList pathsOf(const QString& path)
{
    QStringList paths;
    const QVector<PathTrail::Place> trail = PathTrail::of(path);
    for (const PathTrail::Place& place : trail)
        paths.append(place.path);
    return paths;
}

} // namespace

class PathTrailTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void trailBeginsAtTheRoot();
    void trailLeadsToTheFile_data();
    void trailLeadsToTheFile();
    void namesMayHaveAnyBytes();
    void anotherFileIsADifference();

private:
    QTemporaryDir m_directory;
    QString m_base;
};

void PathTrailTest::initTestCase()
{
    // Symbolic links in the path of the test's directory do not belong to the test.
    m_base = QDir(m_directory.path()).canonicalPath();
    QVERIFY(QDir(m_base).mkpath("a/b"));
    QVERIFY(QDir(m_base).mkpath("c"));
    QVERIFY(TestFiles::write(m_base + "/a/b/file", "text"));
    QVERIFY(TestFiles::link("b/file", m_base + "/a/down"));
    QVERIFY(TestFiles::link("../a/down", m_base + "/c/across"));
    QVERIFY(TestFiles::link(m_base + "/a", m_base + "/c/absolute"));
    QVERIFY(TestFiles::link(".", m_base + "/c/here"));
    QVERIFY(TestFiles::link("nothing", m_base + "/c/broken"));
    QVERIFY(TestFiles::link("circle", m_base + "/c/circle"));
}

void PathTrailTest::trailBeginsAtTheRoot()
{
    const QStringList trail = pathsOf(m_base);
    QCOMPARE(trail.first(), "/");
    QCOMPARE(trail.last(), m_base);
    QCOMPARE(trail.size(), m_base.count('/') + 1);
    QCOMPARE(pathsOf("/"), QStringList{"/"});
}

void PathTrailTest::trailLeadsToTheFile_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("trail");

    using Trail = QStringList;
    row("file", "/a/b/file", Trail{"/a", "/a/b", "/a/b/file"});
    row("directory", "/a/b", Trail{"/a", "/a/b"});
    row("slashes and points", "//a/.//b/", Trail{"/a", "/a/b"});
    row("upwards", "/a/b/../../c", Trail{"/a", "/a/b", "/c"});
    row("missing file", "/a/b/missing", Trail{"/a", "/a/b"});
    row("missing directory", "/a/missing/file", Trail{"/a"});
    row("file as directory", "/a/b/file/x", Trail{"/a", "/a/b", "/a/b/file"});
    row("link", "/a/down", Trail{"/a", "/a/b", "/a/b/file"});
    row("link to a link", "/c/across", Trail{"/c", "/a", "/a/b", "/a/b/file"});
    row("link to an absolute path", "/c/absolute/b/file", Trail{"/c", "/a", "/a/b", "/a/b/file"});
    row("upwards after a link", "/c/absolute/b/..", Trail{"/c", "/a", "/a/b"});
    row("link to its own directory", "/c/here/here/across", Trail{"/c", "/a", "/a/b", "/a/b/file"});
    row("link to nothing", "/c/broken", Trail{"/c"});
    row("link to itself", "/c/circle", Trail{"/c"});
}

void PathTrailTest::trailLeadsToTheFile()
{
    QFETCH(QString, path);
    QFETCH(QStringList, trail);

    QStringList expected = pathsOf(m_base);
    for (const QString& place : trail)
        expected.append(m_base + place);
    QCOMPARE(pathsOf(m_base + path), expected);
}

void PathTrailTest::namesMayHaveAnyBytes()
{
    const QString path = m_base + QString::fromUtf8("/ \xC2\xB5 %1");
    QVERIFY(QDir().mkdir(path));
    QCOMPARE(pathsOf(path).last(), path);
}

void PathTrailTest::anotherFileIsADifference()
{
    const QString directory = m_base + "/d";
    const QString path = directory + "/file";
    QVERIFY(QDir().mkdir(directory));
    QVERIFY(TestFiles::write(path, "text"));
    const QVector<PathTrail::Place> before = PathTrail::of(path);

    QVERIFY(TestFiles::write(path, "another text"));
    QVERIFY(TestFiles::write(directory + "/another file", "text"));
    QVERIFY(PathTrail::of(path) == before);

    QVERIFY(QFile::setPermissions(path, QFileDevice::ReadOwner));
    QVERIFY(PathTrail::of(path) != before);

    QVERIFY(QFile::remove(path));
    QVERIFY(PathTrail::of(path) != before);

    QVERIFY(QDir().rename(directory, m_base + "/e"));
    QVERIFY(QDir().mkdir(directory));
    QVERIFY(TestFiles::write(path, "text"));
    QVERIFY(PathTrail::of(path) != before);
    QVERIFY(PathTrail::of(directory) != before.mid(0, before.size() - 1));
}

static const TestClass<PathTrailTest> testClass;
#include "PathTrailTest.moc"
