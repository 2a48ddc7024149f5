// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>
#include <cstdint>

namespace tonquil {

/// A square for comparing a plain level with alternating full and black rows of device pixels.
///
/// The striped quarters, upper left and lower right, have half the luminance of the full colour;
/// the plain rest has the level that gives half the luminance under a power law of 1.8. The curve
/// is right when both look equally bright.
class TQColorSquare : public QWidget {
 public:
    /// 0: white. 1: red. 2: green. 3: blue. 4: black quarters on white, without stripes; 5 and
    /// above look the same, because their stripes are black too.
    explicit TQColorSquare(std::uint32_t variant = 0, QWidget* parent = nullptr);

    [[nodiscard]] std::uint32_t variant() const { return _variant; }
    void setVariant(std::uint32_t variant);

 protected:
    void paintEvent(QPaintEvent* event) override;

 private:
    std::uint32_t _variant;
};

}  // namespace tonquil
