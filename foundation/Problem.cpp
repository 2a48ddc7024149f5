// SPDX-License-Identifier: MIT
#include "foundation/Problem.h"

#include <utility>

#include "foundation/TextFormat.h"

namespace tonquil {

tl::unexpected<Problem> problemWith(std::string_view format, std::vector<std::string> arguments,
                                    std::string detail) {
    std::string sentence = formattedText(format, arguments);
    return tl::unexpected<Problem>(Problem{.sentence = std::move(sentence),
                                           .detail = std::move(detail),
                                           .format = std::string(format),
                                           .arguments = std::move(arguments)});
}

}  // namespace tonquil
