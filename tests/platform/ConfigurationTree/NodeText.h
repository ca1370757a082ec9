#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataBase.h"

/// A value as text that shows its type; different numbers have different texts.
QString valueText(const QVariant& value);

/// A tree as text, children in alphabetical order: `{@type=TreeNode, a={@type=Number, @value=1}, b=null}`.
/// Only the known properties and "@note" are included.
QString nodeText(const BaseClassSharedPointer& node);

/// The expected text of a document's tree, derived from Qt's own JSON parser.
QString expectedNodeText(const QJsonObject& document);

/// Parses a document. @return a null pointer if it is invalid
BaseClassSharedPointer parse(const QString& json);
