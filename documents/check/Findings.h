#pragma once

#include <QtCore/QString>

#include <utility>
#include <vector>

#include "DocumentChecker.h"

/// Collects the findings of one document. Places are computed at the end, all at once.
class Findings
{
public:
    /// @param document must outlive the object
    Findings(DocumentKind kind, const JsonDocument& document);

    /// Adds a finding at the name of a member, or at the value if it has no name.
    void addAtName(Rule rule, const JsonValue& member, const QString& path, const QString& message,
                   const QString& advice = {});
    /// Adds a finding at a value.
    void addAtValue(Rule rule, const JsonValue& value, const QString& path, const QString& message,
                    const QString& advice = {});
    /// Adds a finding about the whole document.
    void addForDocument(Rule rule, const QString& message, const QString& advice = {});

    /// Whether there is an error so far.
    bool hasError() const;
    /// The findings by place. Call once.
    std::vector<Finding> take();

private:
    void add(int offset, Rule rule, const QString& path, const QString& message, const QString& advice);

    const DocumentKind m_kind;
    const JsonDocument& m_document;
    /// With their offsets in the text.
    std::vector<std::pair<int, Finding>> m_findings;
};
