// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <cstdint>

namespace tonquil {

/// A ramp from black to white, or to full red, green and blue, in steps or smooth.
class TQColorRamp : public QWidget {
 public:
    /// 0: 16 grey steps. 1: 16 steps, each of a red, a green and a blue band from the top. 2:
    /// smooth grey. 3: three smooth bands. Any other variant draws only the frame.
    explicit TQColorRamp(std::uint32_t variant = 0, QWidget* parent = nullptr);

    [[nodiscard]] std::uint32_t variant() const { return _variant; }
    void setVariant(std::uint32_t variant);

    /// Whether the ramp is rotated by 180 degrees: white on the left, blue at the top.
    [[nodiscard]] bool isReversed() const { return _reversed; }
    void setReversed(bool reversed);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    std::uint32_t _variant;
    bool _reversed = false;
};

}  // namespace tonquil
