#pragma once

#include <QtCore/QSharedPointer>
#include <QtCore/QString>
#include <QtCore/QVariant>
#include <QtCore/QVector>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "ConfigurationDataNode.h"

/// Creates nodes directly from the events of a JSON parser. An intermediate document would take several times
/// the memory of the nodes.
///
/// The functions are the callbacks of `nlohmann::json::sax_parse`; each returns false to stop parsing.
class NodeBuilder
{
public:
    /// @return the root node of the document; meaningful only when parsing has succeeded.
    BaseClassSharedPointer root() const;

    bool null();
    bool boolean(bool value);
    bool number_integer(std::int64_t value);
    bool number_unsigned(std::uint64_t value);
    bool number_float(double value, const std::string& text);
    bool string(const std::string& value);
    bool binary(const std::vector<std::uint8_t>& value);
    bool start_object(std::size_t size);
    bool key(const std::string& name);
    bool end_object();
    bool start_array(std::size_t size);
    bool end_array();
    template <typename Error>
    bool parse_error(std::size_t /*position*/, const std::string& /*token*/, const Error& /*error*/)
    {
        return false;
    }

private:
    enum class Kind
    {
        Node,
        Map,
        List
    };

    /// An object or array that is still open.
    struct Level
    {
        Kind kind;
        QSharedPointer<ConfigurationDataNode> node;
        QVariantMap map;
        QVariantList list;
        QString key;
        bool isValueNull = false;
    };

    bool open(Kind kind);
    bool add(const QVariant& value);
    bool isChildExpected() const;
    /// Whether the current value is a note for editors: a member of the root such as "$schema".
    bool isNote() const;
    QString shared(const std::string& utf8);

    std::vector<Level> m_levels;
    QVector<QString> m_recentStrings;
    BaseClassSharedPointer m_root;
};
