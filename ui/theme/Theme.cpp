// SPDX-License-Identifier: MIT
#include "ui/theme/Theme.h"

#include <array>

namespace tonquil {

namespace {

constexpr QColor grey(int level) {
    return {level, level, level};
}

QColor white(double opacity) {
    return QColor::fromRgbF(1, 1, 1, static_cast<float>(opacity));
}
QColor black(double opacity) {
    return QColor::fromRgbF(0, 0, 0, static_cast<float>(opacity));
}

Theme darkTheme() {
    return {.panel = grey(0x1E),
            .panelOpacity = 0.97,
            .field = grey(0x2A),
            .button = grey(0x3A),
            .selection = grey(0x5A),
            .text = grey(0xE6),
            .secondaryText = grey(0xA0),
            .highlight = white(0.12),
            .hairline = white(0.10),
            .outline = white(0.35),
            .grid = white(0.08),
            .track = white(0.14),
            .edge = grey(0xF0),
            .focusRing = grey(0xC8),
            .master = grey(0x9A),
            .red = QColor(0xE5, 0x53, 0x4B),
            .green = QColor(0x57, 0xAB, 0x5A),
            .blue = QColor(0x53, 0x9B, 0xF5)};
}

Theme lightTheme() {
    return {.panel = grey(0xF4),
            .panelOpacity = 1,
            .field = grey(0xFF),
            .button = grey(0xE2),
            .selection = grey(0xC4),
            .text = grey(0x1C),
            .secondaryText = grey(0x6A),
            .highlight = black(0.08),
            .hairline = black(0.18),
            .outline = black(0.35),
            .grid = black(0.08),
            .track = black(0.14),
            .edge = grey(0x1C),
            .focusRing = grey(0x4A),
            .master = grey(0x6E),
            .red = QColor(0xC9, 0x3C, 0x37),
            .green = QColor(0x34, 0x7D, 0x39),
            .blue = QColor(0x31, 0x6D, 0xCA)};
}

Theme contrasted(Theme theme, const QColor& foreground) {
    theme.text = foreground;
    theme.secondaryText = foreground;
    theme.edge = foreground;
    theme.focusRing = foreground;
    theme.hairline = foreground;
    theme.hairline.setAlphaF(0.5F);
    theme.outline = foreground;
    theme.grid.setAlphaF(0.2F);
    theme.track.setAlphaF(0.2F);
    return theme;
}

Theme opaque(Theme theme) {
    theme.panelOpacity = 1;
    return theme;
}

}  // namespace

const QColor& Theme::channel(Channel channel) const {
    switch (channel) {
        case Channel::Red:
            return red;
        case Channel::Green:
            return green;
        case Channel::Blue:
            return blue;
        case Channel::None:
        case Channel::Master:
            break;
    }
    return master;
}

QColor Theme::channelText(Channel channel) const {
    const bool isDark = panel.lightness() < text.lightness();
    return isDark ? blendedWithWhite(this->channel(channel), 0.25) : this->channel(channel);
}

const Theme& themeFor(const Appearance& appearance) {
    // Indexed by contrast, then by transparency.
    static const std::array<Theme, 4> dark = {darkTheme(), opaque(darkTheme()),
                                              contrasted(darkTheme(), grey(0xFF)),
                                              opaque(contrasted(darkTheme(), grey(0xFF)))};
    static const std::array<Theme, 2> light = {lightTheme(), contrasted(lightTheme(), grey(0))};
    const std::size_t contrast = appearance.options.increaseContrast ? 1 : 0;
    const std::size_t opacity = appearance.options.reduceTransparency ? 1 : 0;
    return appearance.isDark ? dark.at(2 * contrast + opacity) : light.at(contrast);
}

const Theme& themeOf(const QWidget& widget) {
    return themeFor(effectiveAppearance(widget));
}

QColor blendedWithWhite(const QColor& colour, double fraction) {
    const auto blend = [fraction](float level) {
        return static_cast<float>(level + (1 - level) * fraction);
    };
    return QColor::fromRgbF(blend(colour.redF()), blend(colour.greenF()), blend(colour.blueF()),
                            colour.alphaF());
}

}  // namespace tonquil
