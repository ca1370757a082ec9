#pragma once

#include <QtCore/QStringList>

#include "Findings.h"
#include "UnitNode.h"

/// Checks the labels of a unit type.
class LabelCheck
{
public:
    /// @param languages those that every label must have; all arguments must outlive the object
    LabelCheck(const TypeNode& type, const QStringList& languages, Findings& findings);

    void run();

    /// Whether the text has the form of "de" or "de_AT".
    static bool isLanguage(const QString& text);
    /// The given languages, or if none are given, all of the document; always with English, on which the
    /// library falls back. Sorted.
    static QStringList requiredLanguages(const JsonDocument& document, const QStringList& given);

private:
    void checkLabel(const UnitNode& unit);
    void checkLanguages(const UnitNode& unit, const std::vector<JsonValue>& texts);
    void checkText(const UnitNode& unit, const JsonValue& text);
    void checkDuplicates();

    const TypeNode& m_type;
    const QStringList& m_languages;
    Findings& m_findings;
};
