#include "PathTrail.h"

#include <QtCore/QFile>

#include <deque>
#include <filesystem>
#include <sys/stat.h>
#include <system_error>

namespace {

namespace fs = std::filesystem;

/// The kernel's limit.
const int maximumLinks = 40;

/// A path being resolved: the places already visited, and the remaining components.
class Walk
{
public:
    explicit Walk(const fs::path& path)
    {
        lead(path);
    }

    QVector<PathTrail::Place> trail()
    {
        visit(m_at);
        while (!m_ahead.empty() && step())
            ;
        return m_trail;
    }

private:
    void lead(const fs::path& path)
    {
        if (path.is_absolute())
            m_at = "/";
        const fs::path way = path.relative_path();
        m_ahead.insert(m_ahead.begin(), way.begin(), way.end());
    }

    /// Resolves the next component. @return whether it exists.
    bool step()
    {
        const fs::path component = m_ahead.front();
        m_ahead.pop_front();
        if (component.empty() || component == ".")
            return true;
        if (component == "..")
            return visit(m_at.parent_path());
        const fs::path next = m_at / component;
        std::error_code error;
        if (!fs::is_symlink(next, error))
            return visit(next);
        lead(fs::read_symlink(next, error));
        return !error && ++m_links <= maximumLinks;
    }

    bool visit(const fs::path& path)
    {
        struct stat status = {};
        if (::lstat(path.c_str(), &status) != 0)
            return false;
        m_at = path;
        const PathTrail::Place place{QFile::decodeName(path.c_str()), status.st_dev, status.st_ino,
                                     status.st_mode};
        if (!m_trail.contains(place))
            m_trail.append(place);
        return true;
    }

    fs::path m_at;
    std::deque<fs::path> m_ahead;
    int m_links = 0;
    QVector<PathTrail::Place> m_trail;
};

} // namespace

bool PathTrail::operator==(const Place& left, const Place& right)
{
    return left.path == right.path && left.device == right.device && left.number == right.number &&
           left.permissions == right.permissions;
}

QVector<PathTrail::Place> PathTrail::of(const QString& path)
{
    return Walk(QFile::encodeName(path).toStdString()).trail();
}
