// SPDX-License-Identifier: MIT
#include "colourfiles/CalReader.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "foundation/TranslatableText.h"

namespace tonquil {

namespace {

constexpr std::string_view blanks = " \t\r\n\f\v";
constexpr std::size_t mostFields = 64;
constexpr std::size_t mostSets = 65536;

struct Word {
    std::string_view text;
    bool isQuoted = false;

    /// Whether it is this keyword; a quoted text never is.
    [[nodiscard]] bool is(std::string_view keyword) const { return !isQuoted && text == keyword; }
};

/// Splits CGATS text into words and quoted texts; skips comments.
class WordReader {
 public:
    explicit WordReader(std::string_view text) : _rest(text) {}

    /// Nothing at the end.
    std::optional<Word> next() {
        for (skip(blanks); _rest.starts_with('#'); skip(blanks)) {
            _rest.remove_prefix(std::min(_rest.find('\n'), _rest.size()));
        }
        if (_rest.empty()) {
            return std::nullopt;
        }
        const bool isQuoted = _rest.front() == '"';
        if (isQuoted) {
            _rest.remove_prefix(1);
        }
        const auto length =
            std::min(isQuoted ? _rest.find('"') : _rest.find_first_of(blanks), _rest.size());
        const Word word{.text = _rest.substr(0, length), .isQuoted = isQuoted};
        _rest.remove_prefix(std::min(length + 1, _rest.size()));
        return word;
    }

 private:
    void skip(std::string_view characters) {
        _rest.remove_prefix(std::min(_rest.find_first_not_of(characters), _rest.size()));
    }

    std::string_view _rest;
};

std::string_view textOf(std::span<const std::uint8_t> bytes) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): text is bytes.
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

std::optional<double> numberFrom(std::string_view text) {
    double number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc() || end != text.data() + text.size() || !std::isfinite(number)) {
        return std::nullopt;
    }
    return number;
}

/// Reads one table: its fields, then its sets.
class TableReader {
 public:
    explicit TableReader(std::string_view text) : _words(text) {}

    Result<Calibration> read() {
        static_cast<void>(_words.next());
        while (const auto word = _words.next()) {
            if (word->is("COLOR_REP")) {
                const auto colours = _words.next();
                if (!colours || colours->text != "RGB") {
                    return problem(
                        TONQUIL_TEXT("Problem", "The calibration is not for a display."));
                }
            } else if (word->is("NUMBER_OF_SETS")) {
                const auto number = _words.next();
                _announcedSets = number ? numberFrom(number->text) : std::nullopt;
            } else if (word->is("BEGIN_DATA_FORMAT")) {
                if (!readFields()) {
                    return damaged("its list of fields is damaged");
                }
            } else if (word->is("BEGIN_DATA")) {
                return readSets();
            }
        }
        return damaged("it has no data");
    }

 private:
    static constexpr std::array<std::string_view, 4> names{"RGB_I", "RGB_R", "RGB_G", "RGB_B"};

    static tl::unexpected<Problem> damaged(const char* detail) {
        return problem(TONQUIL_TEXT("Problem", "The calibration file is damaged."), detail);
    }

    /// The names of all fields, up to the end of their list.
    bool readFields() {
        for (auto word = _words.next(); word; word = _words.next()) {
            if (word->is("END_DATA_FORMAT")) {
                return true;
            }
            const auto* const known = std::ranges::find(names, word->text);
            _columns.push_back(static_cast<std::size_t>(known - names.begin()));
            if (_columns.size() > mostFields) {
                return false;
            }
        }
        return false;
    }

    Result<Calibration> readSets() {
        for (std::size_t name = 0; name < names.size(); ++name) {
            if (std::ranges::count(_columns, name) != 1) {
                return problem(TONQUIL_TEXT("Problem", "The calibration is not for a display."));
            }
        }
        std::array<std::vector<double>, names.size()> values;
        std::size_t column = 0;
        auto word = _words.next();
        for (; word && !word->is("END_DATA"); word = _words.next()) {
            if (const std::size_t name = _columns.at(column); name < names.size()) {
                const auto number = numberFrom(word->text);
                if (!number || values.at(name).size() >= mostSets) {
                    return damaged("one of its levels is no number, or there are too many");
                }
                values.at(name).push_back(*number);
            }
            column = (column + 1) % _columns.size();
        }
        const std::vector<double>& inputs = values.front();
        // A last number may have lost digits without its end showing it.
        if (!word || column != 0 || !_announcedSets ||
            *_announcedSets != static_cast<double>(inputs.size())) {
            return damaged("it has not as many sets as it says");
        }
        if (!areEvenlySpaced(inputs)) {
            return damaged("its inputs are not evenly spaced");
        }
        Calibration calibration;
        for (std::size_t c = 0; c < calibration.size(); ++c) {
            calibration.at(c).samples = std::move(values.at(c + 1));
        }
        return calibration;
    }

    // Programs write the inputs with few digits, so this allows for rounding.
    static bool areEvenlySpaced(const std::vector<double>& inputs) {
        if (inputs.size() < 2) {
            return false;
        }
        const double step = 1 / static_cast<double>(inputs.size() - 1);
        const double tolerance = std::max(step / 4, 1e-4);
        for (std::size_t i = 0; i < inputs.size(); ++i) {
            if (std::abs(inputs[i] - static_cast<double>(i) * step) > tolerance) {
                return false;
            }
        }
        return true;
    }

    WordReader _words;
    /// Which of `names` each column is; their number for another one.
    std::vector<std::size_t> _columns;
    std::optional<double> _announcedSets;
};

}  // namespace

bool beginsLikeCal(std::span<const std::uint8_t> bytes) {
    constexpr std::size_t enough = 64;
    const std::string_view text = textOf(bytes.first(std::min(bytes.size(), enough)));
    return text.starts_with("CAL") && text.size() > 3 &&
           blanks.find(text[3]) != std::string_view::npos;
}

Result<Calibration> readCal(std::span<const std::uint8_t> text) {
    return TableReader(textOf(text)).read();
}

}  // namespace tonquil
