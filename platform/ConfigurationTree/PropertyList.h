#pragma once

#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <algorithm>

/// The properties of one node by key. For so few entries a list is smaller and faster than a hash.
class PropertyList
{
    struct Entry
    {
        QString key;
        QVariant value;
    };

    struct HasKey
    {
        const QString& key;
        bool operator()(const Entry& entry) const
        {
            return isSameKey(entry.key, key);
        }
    };

public:
    /// Whether both keys are equal. Most keys share their characters with the definitions.
    static bool isSameKey(const QString& left, const QString& right)
    {
        return left.constData() == right.constData() || (left.size() == right.size() && left == right);
    }

    bool contains(const QString& key) const
    {
        return find(key) != nullptr;
    }
    /// @return the property's value; null when there is none under that key.
    const QVariant* find(const QString& key) const
    {
        const auto entry = std::find_if(m_entries.cbegin(), m_entries.cend(), HasKey{key});
        return entry == m_entries.cend() ? nullptr : &entry->value;
    }
    /// @return a copy of the property's value; an invalid variant when there is none under that key.
    QVariant value(const QString& key) const
    {
        const QVariant* const found = find(key);
        return found ? *found : QVariant();
    }
    /// Adds or replaces a property; an invalid value removes it.
    void set(const QString& key, const QVariant& value)
    {
        m_entries.erase(std::remove_if(m_entries.begin(), m_entries.end(), HasKey{key}), m_entries.end());
        if (value.isValid())
            m_entries.append({key, value});
    }

private:
    QVector<Entry> m_entries;
};
