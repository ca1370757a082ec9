#include "ConfigurationAndProcessDataParser.h"

#include <nlohmann/json.hpp>

#include "NodeBuilder.h"

namespace {

// Both are invalid JSON, but the parser takes a NUL as the end of the text and accepts an unpaired surrogate.
bool isPlainText(QStringView text)
{
    return text.isValidUtf16() && !text.contains(QChar(QChar::Null));
}

} // namespace

BaseClassSharedPointer ConfigurationAndProcessDataParser::parseFromJson(const QString& json,
                                                                        const QString& fileExtension) const
{
    const QStringView text(json);
    if (fileExtension != QLatin1String("json") || !isPlainText(text))
        return {};
    NodeBuilder builder;
    if (!nlohmann::json::sax_parse(text.utf16(), text.utf16() + text.size(), &builder))
        return {};
    return builder.root();
}
