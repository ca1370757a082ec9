#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>
#include <QtCore/QVariant>

#include "ConfigurationAndProcessDataBase.h"

/// A value as text: its kind is visible, and two different numbers have different texts.
QString valueText(const QVariant& value);

/// A tree as text, children in alphabetical order: `{@type=TreeNode, a={@type=Number, @value=1}, b=null}`. Of
/// the properties the known ones and "@note" are shown.
QString nodeText(const BaseClassSharedPointer& node);

/// The text of the tree that a document stands for, made from Qt's own reading of it.
QString expectedNodeText(const QJsonObject& document);

/// Parses a document; a null pointer when it is none.
BaseClassSharedPointer parse(const QString& json);
