// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

#include "model/KVTableGammaCurve.h"
#include "model/TQExtendedGammaCurve.h"
#include "tests/model/FakeScreen.h"

namespace {

std::size_t allocations = 0;

}  // namespace

// Counts every allocation of the test program.
void* operator new(std::size_t size) {
    ++allocations;
    if (void* memory = std::malloc(size)) {
        return memory;
    }
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}

namespace tonquil {
namespace {

TEST(Applying, AllocatesNothing) {
    FakeScreen screen;
    screen.base.sampleCount = 256;
    const KVGammaCurve plain;
    TQExtendedGammaCurve extended;
    const KVTableGammaCurve raw{GammaTable{}};
    const std::size_t before = allocations;
    plain.applyToScreen(screen);
    extended.applyToScreen(screen);
    extended.blackPoint()->setRedValue(0.2F);
    extended.applyToScreen(screen);
    raw.applyToScreen(screen);
    EXPECT_EQ(allocations, before);
    // The counter counts.
    static_cast<void>(extended.flatGammaCurve());
    EXPECT_GT(allocations, before);
}

}  // namespace
}  // namespace tonquil
