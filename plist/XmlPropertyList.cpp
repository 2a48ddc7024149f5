// SPDX-License-Identifier: MIT
#include "plist/XmlPropertyList.h"

#include <expat.h>

#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>

#include "foundation/TranslatableText.h"
#include "plist/XmlValueBuilder.h"

namespace tonquil {

namespace {

using Parser = std::unique_ptr<std::remove_pointer_t<XML_Parser>, decltype(&XML_ParserFree)>;

/// State of one parse: the builder and the first problem. The parser may still deliver events after
/// that; they are ignored.
struct Parse {
    XML_Parser parser;
    XmlValueBuilder builder;
    std::optional<Problem> problem;

    void note(Result<void> result) {
        if (!result) {
            problem = std::move(result.error());
            XML_StopParser(parser, XML_FALSE);
        }
    }
};

Parse& parseOf(void* user) {
    return *static_cast<Parse*>(user);
}

void refuse(void* user, const char* detail) {
    if (Parse& parse = parseOf(user); !parse.problem) {
        parse.note(problem(TONQUIL_TEXT("Problem", "The property list is damaged."), detail));
    }
}

void onBegin(void* user, const XML_Char* name, const XML_Char** /*attributes*/) {
    if (Parse& parse = parseOf(user); !parse.problem) {
        parse.note(parse.builder.begin(name));
    }
}

void onEnd(void* user, const XML_Char* /*name*/) {
    if (Parse& parse = parseOf(user); !parse.problem) {
        parse.note(parse.builder.end());
    }
}

void onText(void* user, const XML_Char* text, int length) {
    if (Parse& parse = parseOf(user); !parse.problem) {
        parse.note(parse.builder.text({text, static_cast<std::size_t>(length)}));
    }
}

void onEntityDeclared(void* user, const XML_Char* /*name*/, int /*isParameter*/,
                      const XML_Char* /*value*/, int /*length*/, const XML_Char* /*base*/,
                      const XML_Char* /*system*/, const XML_Char* /*publicId*/,
                      const XML_Char* /*notation*/) {
    refuse(user, "it declares an entity");
}

// Each declared attribute costs time at every element, which adds up to far more than the file.
void onAttributeDeclared(void* user, const XML_Char* /*element*/, const XML_Char* /*name*/,
                         const XML_Char* /*type*/, const XML_Char* /*value*/, int /*isRequired*/) {
    refuse(user, "it declares an attribute");
}

// With an external DTD that is not loaded, the parser does not report an unknown entity as an
// error, but silently drops it from the text.
void onEntitySkipped(void* user, const XML_Char* /*name*/, int /*isParameter*/) {
    refuse(user, "it refers to an unknown entity");
}

void setHandlers(XML_Parser parser) {
    XML_SetElementHandler(parser, onBegin, onEnd);
    XML_SetCharacterDataHandler(parser, onText);
    XML_SetEntityDeclHandler(parser, onEntityDeclared);
    XML_SetAttlistDeclHandler(parser, onAttributeDeclared);
    XML_SetSkippedEntityHandler(parser, onEntitySkipped);
}

XML_Status feed(XML_Parser parser, std::span<const std::uint8_t> bytes, XML_Bool isFinal) {
    // Any character type may alias bytes.
    const auto* const text = reinterpret_cast<const char*>(bytes.data());  // NOLINT
    return XML_Parse(parser, text, static_cast<int>(bytes.size()), isFinal);
}

std::string lineOf(XML_Parser parser) {
    return " in line " + std::to_string(XML_GetCurrentLineNumber(parser));
}

}  // namespace

Result<PropertyValue> readXmlPropertyList(std::span<const std::uint8_t> mark,
                                          std::span<const std::uint8_t> bytes,
                                          const PropertyListBudget& budget) {
    if (bytes.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
        return problem(TONQUIL_TEXT("Problem", "The property list is too large."));
    }
    const Parser parser(XML_ParserCreate(nullptr), &XML_ParserFree);
    if (!parser) {
        return problem(
            TONQUIL_TEXT("Problem", "There is not enough memory to read the property list."));
    }
    Parse parse{parser.get(), XmlValueBuilder(budget), std::nullopt};
    XML_SetUserData(parser.get(), &parse);
    setHandlers(parser.get());

    XML_Status status = feed(parser.get(), mark, /*isFinal=*/XML_FALSE);
    if (status == XML_STATUS_OK) {
        status = feed(parser.get(), bytes, /*isFinal=*/XML_TRUE);
    }
    if (parse.problem) {
        parse.problem->detail += lineOf(parser.get());
        return tl::unexpected(std::move(*parse.problem));
    }
    auto value = parse.builder.takeValue();
    if (status != XML_STATUS_OK || !value) {
        const char* const words = XML_ErrorString(XML_GetErrorCode(parser.get()));
        return problem(TONQUIL_TEXT("Problem", "The property list is damaged."),
                       (words != nullptr ? words : "no value") + lineOf(parser.get()));
    }
    return std::move(*value);
}

}  // namespace tonquil
