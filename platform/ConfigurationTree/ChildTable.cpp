#include "ChildTable.h"

namespace {

const int maxLength = 8;

} // namespace

void ChildTable::insert(const QString& key, const BaseClassSharedPointer& child)
{
    if (!m_map.isEmpty() || m_list.size() == maxLength) {
        map();
        m_map.insert(key, child);
        return;
    }
    for (Entry& entry : m_list) {
        if (entry.key == key) {
            entry.child = child;
            return;
        }
    }
    m_list.append({key, child});
}

BaseClassSharedPointer ChildTable::value(const QString& key) const
{
    for (const Entry& entry : qAsConst(m_list)) {
        if (entry.key == key)
            return entry.child;
    }
    return m_map.value(key);
}

const QHash<QString, BaseClassSharedPointer>& ChildTable::map() const
{
    if (m_list.isEmpty())
        return m_map;
    m_map.reserve(m_list.size());
    for (const Entry& entry : qAsConst(m_list))
        m_map.insert(entry.key, entry.child);
    m_list = {};
    return m_map;
}
