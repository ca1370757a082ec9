#pragma once

#include <QtCore/QString>
#include <QtCore/QStringView>

/// A place in a JSON text (RFC 8259), moving forward over it.
///
/// skipValue() checks what it passes over. The read functions trust the text: they are for a place in a value
/// that skipValue() has accepted before. The text must outlive the cursor.
class JsonCursor
{
public:
    explicit JsonCursor(QStringView text);

    /// Moves past blanks. @return whether the text ends there.
    bool isAtEnd();
    /// Moves past blanks. @return the character there, a null character at the end.
    QChar peek();
    /// Moves past blanks and past @p character. @return false, without passing it, when something else is
    /// there.
    bool take(char character);
    /// Moves past blanks and one whole value.
    ///
    /// @return false, at an unspecified place, when there is no valid value: bad syntax, an unpaired
    /// surrogate, a number beyond the range of `double`, or more than 1024 objects and arrays in each other.
    bool skipValue();

    /// Moves past blanks and one value, unchecked. @return its text.
    QStringView readRaw();
    /// Moves past blanks and a string. @return the text between its quotes, escapes as they stand.
    QStringView readRawString();
    /// Moves past blanks and a number.
    double readNumber();
    /// Moves past blanks and "true" or "false".
    bool readBoolean();

    /// @return the text that a string of the JSON text stands for: @p raw with its escapes resolved.
    static QString unescaped(QStringView raw);

private:
    bool skipNested(int depth);
    bool skipContent(char closing, bool isObject, int depth);
    bool skipMemberName();
    bool skipString();
    bool skipEscape();
    bool skipSurrogatePair();
    bool skipNumber();
    bool skipDigits();
    bool skipWord(QStringView word);

    const QChar* m_at;
    const QChar* m_end;
};
