// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "screens/DisplayService.h"
#include "screens/KVScreen.h"

namespace tonquil {

/// The screens online at the last update, and every screen seen since the program started.
///
/// A program creates one registry at startup. Looking up a screen never reports an error: a null
/// pointer or an empty list means that there is none.
class ScreenRegistry {
 public:
    using ScreenPointer = std::shared_ptr<KVScreen>;
    using Screens = std::vector<ScreenPointer>;

    /// At most this many displays are listed.
    static constexpr std::size_t mostScreens = 25;

    /// The service must outlive the registry and its screens.
    explicit ScreenRegistry(DisplayService& service) : _service(service) {}
    ScreenRegistry(const ScreenRegistry&) = delete;
    ScreenRegistry& operator=(const ScreenRegistry&) = delete;

    /// Refreshes the list of displays. A display is recognised by its display ID if that was seen
    /// before, otherwise by its reference ID if a screen in the current list has it.
    ///
    /// So when a twin (a display with the same reference ID as a listed one) arrives, it takes over
    /// the other's screen. The list then holds that screen twice, and it sets both displays. Twins
    /// get screens of their own if they arrive together, or come back.
    void updateScreenList();
    /// In the display service's order; the first call builds the list.
    [[nodiscard]] const Screens& screens();
    /// In no particular order.
    [[nodiscard]] const Screens& sightedScreens() const { return _sightedScreens; }

    /// The screens whose bounds contain a point in bottom-up desktop space.
    [[nodiscard]] Screens screensWithPoint(const Point& point);
    /// The screens whose bounds are exactly a rectangle in bottom-up desktop space.
    [[nodiscard]] Screens screensWithRect(const Rectangle& rectangle);
    /// The screens whose bounds contain, or intersect, a rectangle in *top-down* space.
    [[nodiscard]] Screens screensContainingRect(const Rectangle& rectangle);
    [[nodiscard]] Screens screensIntersectingRect(const Rectangle& rectangle);
    /// The screen under the centre of the platform screen's frame, used without flipping. A null
    /// argument gives null only if no display lies at the origin.
    [[nodiscard]] ScreenPointer screenWithScreen(const PlatformScreen* platformScreen);
    /// The sighted screen with this ID, or a new one that the registry does not keep.
    [[nodiscard]] ScreenPointer screenWithDirectDisplayID(DisplayID display);
    /// Also null before the first update.
    [[nodiscard]] ScreenPointer _sightedScreenWithDirectDisplayID(DisplayID display) const;
    /// The first listed screen with exactly this reference ID; null before the first update.
    [[nodiscard]] ScreenPointer screenWithReferenceID(std::string_view referenceID) const;

    /// Assigns curves from an all-screens dictionary to the listed screens (by twin reference ID,
    /// else reference ID; old-style IDs are ignored). All others get the initial curve object, if
    /// one is given, and share it.
    void adoptGammaCurveDictionary(const nlohmann::json& dictionary,
                                   const KVScreen::CurvePointer& initialCurve);
    /// The curves of the listed screens by reference ID; those of twins also by twin reference ID.
    [[nodiscard]] nlohmann::json gammaCurveDictionary();
    /// The same, for merging into a stored all-screens dictionary. A twin's stored entry is updated
    /// even while its twin is unplugged. But a display that took over its twin's screen keeps its
    /// stored entry until that screen gets another curve, because nobody chose to replace it.
    [[nodiscard]] nlohmann::json gammaCurveDictionaryOver(const nlohmann::json& stored);
    /// The same, merged over the given all-screens dictionary, whose other entries are kept.
    [[nodiscard]] nlohmann::json gammaCurveDictionaryExtendingDictionary(
        const nlohmann::json& dictionary);

 private:
    /// An entry of the list. One screen may have several, one per display.
    struct Place {
        DisplayID display;
        std::string twinReferenceID;
        /// The curve of the screen that the display took over on arrival; null once it changed.
        KVScreen::CurvePointer takenOver;
    };

    [[nodiscard]] Place placeFor(const KVScreen& screen, bool isTakenOver) const;
    [[nodiscard]] bool isShared(const std::string& referenceID);
    void shareTablesAmongPlaces();
    [[nodiscard]] ScreenPointer screenForOnlineDisplay(DisplayID display);
    template <typename Predicate>
    [[nodiscard]] Screens screensWithBounds(Predicate predicate);

    DisplayService& _service;
    std::optional<Screens> _screens;
    /// Parallel to the list of screens.
    std::vector<Place> _places;
    Screens _sightedScreens;
};

}  // namespace tonquil
