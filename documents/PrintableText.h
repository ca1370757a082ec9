#pragma once

#include <QtCore/QString>

/// Text from documents and command lines for a terminal or a log.
namespace PrintableText {

/// Replaces every character that a terminal could obey instead of showing, such as control characters and
/// changes of the writing direction: a tab by a blank, others by "?".
QString of(QString text);

} // namespace PrintableText
