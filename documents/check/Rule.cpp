#include "Rule.h"

const std::vector<RuleDescription>& Rules::all()
{
    // The order is that of the enumeration, which describe() relies on.
    static const std::vector<RuleDescription> table = {
        {Rule::Syntax, Severity::Error, "syntax", "the document is not valid JSON"},
        {Rule::Encoding, Severity::Error, "encoding", "the document is not UTF-8"},
        {Rule::Nesting, Severity::Error, "nesting", "objects or lists are nested too deeply"},
        {Rule::DuplicateName, Severity::Error, "duplicate-name", "an object has two members of one name"},
        {Rule::NumberOverflow, Severity::Error, "number-overflow",
         "a number exceeds the range of double precision"},

        {Rule::DocumentEmpty, Severity::Error, "document-empty", "the document has no entries"},
        {Rule::DocumentRefused, Severity::Error, "document-refused",
         "the library does not load the document"},
        {Rule::NameInvalid, Severity::Error, "name-invalid",
         "a name is empty, reserved or longer than 255 characters, or has a slash, which separates the "
         "sections of identifiers"},
        {Rule::NameUnusual, Severity::Warning, "name-unusual",
         "a name is not made of letters and digits, or does not begin with a letter"},
        {Rule::NullNode, Severity::Error, "null-node", "null in place of an object, list or value"},
        {Rule::TypeInvalid, Severity::Error, "type-invalid", "a unit type is not an object"},
        {Rule::TypeEmpty, Severity::Error, "type-empty", "a unit type has no units"},
        {Rule::NoUnitInvalid, Severity::Error, "no-unit-invalid",
         "NoUnit is not the only unit of its type, or has more than a position and an empty label"},
        {Rule::UnitInvalid, Severity::Error, "unit-invalid", "a unit is not an object"},
        {Rule::UnknownMember, Severity::Warning, "unknown-member", "a member that no program reads"},

        {Rule::ConversionMissing, Severity::Error, "conversion-missing",
         "the library ignores the unit, because it has no conversion"},
        {Rule::ConversionAmbiguous, Severity::Error, "conversion-ambiguous",
         "a unit has more than one kind of conversion"},
        {Rule::ConversionTable, Severity::Warning, "conversion-table",
         "a conversion by table returns values unchanged"},
        {Rule::CoefficientsInvalid, Severity::Error, "coefficients-invalid",
         "coefficients or table values are not lists of numbers"},
        {Rule::InverseMissing, Severity::Error, "inverse-missing",
         "a polynomial has no inverse, so every value is stored as 0"},
        {Rule::InverseWrong, Severity::Error, "inverse-wrong",
         "converting a value and back gives another value"},
        {Rule::InverseInaccurate, Severity::Warning, "inverse-inaccurate",
         "converting a value and back loses digits, or gives another value on a curve"},
        {Rule::ConversionSwapped, Severity::Error, "conversion-swapped",
         "the two polynomials are interchanged, as the prefix in the label shows"},
        {Rule::ConversionConstant, Severity::Error, "conversion-constant",
         "every value is converted to the same value"},
        {Rule::NotMonotonic, Severity::Warning, "not-monotonic",
         "different values within the range of a curve are converted to the same value"},
        {Rule::BaseMissing, Severity::Error, "base-missing", "a unit type has no unit at position 0"},
        {Rule::BaseAmbiguous, Severity::Error, "base-ambiguous",
         "a unit type has several units at position 0, so its base unit differs from run to run"},
        {Rule::BaseNotIdentity, Severity::Error, "base-not-identity",
         "the conversion of the base unit changes values"},

        {Rule::PositionInvalid, Severity::Error, "position-invalid",
         "a display position is not a whole number from 0 on"},
        {Rule::PositionShared, Severity::Warning, "position-shared", "two units have the same position"},
        {Rule::DecimalsInvalid, Severity::Error, "decimals-invalid",
         "decimal places are not a whole number from 0 to 17"},
        {Rule::DecimalsTooFew, Severity::Note, "decimals-too-few",
         "a displayed value, written back unedited, changes the stored value"},

        {Rule::LabelMissing, Severity::Warning, "label-missing", "a unit has no label"},
        {Rule::LabelInvalid, Severity::Warning, "label-invalid",
         "a label is not an object with a text per language"},
        {Rule::LabelDuplicate, Severity::Warning, "label-duplicate",
         "two units of a type have the same label"},
        {Rule::LabelCharacters, Severity::Warning, "label-characters",
         "a label has control characters, or blanks at its ends"},
        {Rule::LanguageMissing, Severity::Warning, "language-missing", "a label lacks a language"},
        {Rule::LanguageInvalid, Severity::Warning, "language-invalid",
         "the name of a language is not of the form de or de_AT"},

        {Rule::DefaultInvalid, Severity::Error, "default-invalid", "an entry is not a selection of a unit"},
        {Rule::DefaultTypeUnknown, Severity::Warning, "default-type-unknown",
         "a default unit for an unknown unit type", Scope::Documents},
        {Rule::DefaultUnitUnknown, Severity::Warning, "default-unit-unknown",
         "a default unit that is not a unit of its type", Scope::Documents},
        {Rule::DefaultMissing, Severity::Warning, "default-missing", "a unit type has no default unit",
         Scope::Documents},

        {Rule::DependencyInvalid, Severity::Error, "dependency-invalid", "an entry is not a list of keys"},
        {Rule::DependencyEmpty, Severity::Warning, "dependency-empty", "nothing depends on a key"},
        {Rule::DependencyDuplicate, Severity::Warning, "dependency-duplicate", "a key is listed twice"},
        {Rule::DependencyUnknown, Severity::Warning, "dependency-unknown",
         "a key leads nowhere: it is similar to that of a unit type, but misspelt", Scope::Documents},
        {Rule::DependencyCycle, Severity::Warning, "dependency-cycle", "a key depends on itself"}};
    return table;
}

const RuleDescription& Rules::describe(Rule rule)
{
    return all()[static_cast<std::size_t>(rule)];
}

const QStringList& Rules::severityNames()
{
    static const QStringList names{QStringLiteral("error"), QStringLiteral("warning"),
                                   QStringLiteral("note")};
    return names;
}

QString Rules::severityName(Severity severity)
{
    return severityNames()[static_cast<int>(severity)];
}

std::optional<Severity> Rules::severityFromName(const QString& name)
{
    const int index = severityNames().indexOf(name);
    return index < 0 ? std::nullopt : std::optional<Severity>(static_cast<Severity>(index));
}
