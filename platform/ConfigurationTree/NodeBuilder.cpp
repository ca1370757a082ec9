#include "NodeBuilder.h"

#include <QtCore/QHash>

#include <utility>

#include "ConfigurationAndProcessDataDefinitions.h"
#include "ConfigurationAndProcessDataTools.h"

namespace {

using Definitions = ConfigurationAndProcessDataDefinitions;
using NodePointer = QSharedPointer<ConfigurationDataNode>;

const std::size_t maxDepth = 1024;

// Keys, languages and units repeat throughout a document, so equal strings are shared. The fixed table size
// limits the cost for a document with many different strings.
const uint sharedStringCount = 512;

bool isProperty(const QString& key)
{
    return key.startsWith(QLatin1Char('@'));
}

BaseClassSharedPointer leaf(const QVariant& value)
{
    if (!value.isValid())
        return {};
    const NodePointer node = NodePointer::create();
    node->storeProperty(Definitions::getKeyDataPropertyValue(), value);
    return node;
}

bool isOfNumberType(const ConfigurationDataNode& node)
{
    return node.getProperty(Definitions::getKeyDataPropertyType()).toString() ==
           Definitions::getKeyDataTypeNumber();
}

} // namespace

BaseClassSharedPointer NodeBuilder::root() const
{
    return m_root;
}

bool NodeBuilder::null()
{
    return add({});
}

bool NodeBuilder::boolean(bool value)
{
    return add(value);
}

bool NodeBuilder::number_integer(std::int64_t value)
{
    // Called only for signed numbers, so a zero here is "-0".
    return add(value == 0 ? -0.0 : static_cast<double>(value));
}

bool NodeBuilder::number_unsigned(std::uint64_t value)
{
    return add(static_cast<double>(value));
}

bool NodeBuilder::number_float(double value, const std::string& /*text*/)
{
    return add(value);
}

bool NodeBuilder::string(const std::string& value)
{
    return add(shared(value));
}

bool NodeBuilder::binary(const std::vector<std::uint8_t>& /*value*/)
{
    return false;
}

bool NodeBuilder::start_object(std::size_t /*size*/)
{
    return open(isChildExpected() ? Kind::Node : Kind::Map);
}

bool NodeBuilder::key(const std::string& name)
{
    m_levels.back().key = shared(name);
    return true;
}

bool NodeBuilder::end_object()
{
    const Level level = std::move(m_levels.back());
    m_levels.pop_back();
    if (level.kind == Kind::Map)
        return add(level.map);
    // Done at the end of the object, because the type may come after the value.
    if (level.isValueNull && isOfNumberType(*level.node))
        level.node->storeProperty(Definitions::getKeyDataPropertyValue(),
                                  ConfigurationAndProcessDataTools::getNoInputValueIndicator());
    if (m_levels.empty())
        m_root = level.node;
    else
        m_levels.back().node->insertChild(m_levels.back().key, level.node);
    return true;
}

bool NodeBuilder::start_array(std::size_t /*size*/)
{
    return open(Kind::List);
}

bool NodeBuilder::end_array()
{
    const Level level = std::move(m_levels.back());
    m_levels.pop_back();
    return add(QVariant(level.list));
}

bool NodeBuilder::open(Kind kind)
{
    const bool isDocument = m_levels.empty();
    if (m_levels.size() == maxDepth || (isDocument && kind != Kind::Node))
        return false;
    m_levels.push_back({kind, kind == Kind::Node ? NodePointer::create() : NodePointer(), {}, {}, {}});
    return true;
}

bool NodeBuilder::add(const QVariant& value)
{
    if (m_levels.empty())
        return false;
    Level& level = m_levels.back();
    if (level.kind == Kind::List)
        level.list.append(value);
    else if (level.kind == Kind::Map)
        level.map.insert(level.key, value);
    else if (isProperty(level.key))
        level.node->storeProperty(level.key, value);
    else if (!isNote())
        level.node->insertChild(level.key, leaf(value));
    if (level.kind == Kind::Node && level.key == Definitions::getKeyDataPropertyValue())
        level.isValueNull = !value.isValid();
    return true;
}

bool NodeBuilder::isChildExpected() const
{
    return m_levels.empty() ||
           (m_levels.back().kind == Kind::Node && !isProperty(m_levels.back().key) && !isNote());
}

bool NodeBuilder::isNote() const
{
    return m_levels.size() == 1 && m_levels.back().key.startsWith(QLatin1Char('$'));
}

QString NodeBuilder::shared(const std::string& utf8)
{
    QString text = QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
    if (m_recentStrings.isEmpty())
        m_recentStrings.resize(sharedStringCount);
    QString& recent = m_recentStrings[static_cast<int>(qHash(text, 0) % sharedStringCount)];
    if (recent != text)
        recent = std::move(text);
    return recent;
}
