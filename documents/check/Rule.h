#pragma once

#include <QtCore/QStringList>

#include <optional>
#include <vector>

/// How much a finding matters.
enum class Severity
{
    /// A device would show wrong values or lose units. The service refuses the document.
    Error,
    /// Likely a mistake. The service logs it and uses the document.
    Warning,
    /// Worth knowing. The service ignores it.
    Note
};

/// What a document must satisfy. Every finding names one rule.
enum class Rule
{
    Syntax,
    Encoding,
    Nesting,
    DuplicateName,
    NumberOverflow,

    DocumentEmpty,
    DocumentRefused,
    NameInvalid,
    NameUnusual,
    NullNode,
    TypeInvalid,
    TypeEmpty,
    NoUnitInvalid,
    UnitInvalid,
    UnknownMember,

    ConversionMissing,
    ConversionAmbiguous,
    ConversionTable,
    CoefficientsInvalid,
    InverseMissing,
    InverseWrong,
    InverseInaccurate,
    ConversionSwapped,
    ConversionConstant,
    NotMonotonic,
    BaseMissing,
    BaseAmbiguous,
    BaseNotIdentity,

    PositionInvalid,
    PositionShared,
    DecimalsInvalid,
    DecimalsTooFew,

    LabelMissing,
    LabelInvalid,
    LabelDuplicate,
    LabelCharacters,
    LanguageMissing,
    LanguageInvalid,

    DefaultInvalid,
    DefaultTypeUnknown,
    DefaultUnitUnknown,
    DefaultMissing,

    DependencyInvalid,
    DependencyEmpty,
    DependencyDuplicate,
    DependencyUnknown,
    DependencyCycle
};

/// What a rule looks at.
enum class Scope
{
    /// One document alone.
    Document,
    /// A document together with the unit document. Such a finding is never an error: documents are saved one
    /// after the other, so they may disagree for a moment.
    Documents
};

/// A rule as shown to the user.
struct RuleDescription
{
    Rule rule = Rule::Syntax;
    Severity severity = Severity::Error;
    /// Stable: scripts select findings by it.
    const char* name = "";
    /// What is wrong when the rule is violated; one sentence without full stop.
    const char* summary = "";
    Scope scope = Scope::Document;
};

/// The table of rules. It decides which findings are errors, everywhere.
namespace Rules {

/// All rules, in the order of the enumeration.
const std::vector<RuleDescription>& all();
const RuleDescription& describe(Rule rule);

/// "error", "warning" and "note", in the order of the enumeration.
const QStringList& severityNames();
QString severityName(Severity severity);
/// @return no value for another text
std::optional<Severity> severityFromName(const QString& name);

} // namespace Rules
