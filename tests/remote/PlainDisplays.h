// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "remote/TQPlayerServer.h"

namespace tonquil {

/// A server's data source with displays in memory. It knows nothing about one with the reference ID
/// "gone".
class PlainDisplays final : public TQPlayerServerDataSource {
 public:
    struct Display {
        std::string referenceID;
        PropertyValue gamma = {1, 0, 1, 1, 0, 1, 1, 0, 1, 1, 0, 1, 1};
        std::string content = "transparent";
        bool isLocal = false;
    };

    explicit PlainDisplays(std::vector<Display> list = {}) : displays(std::move(list)) {}

    std::vector<std::string> screensForPlayerServer(TQPlayerServer&) override {
        std::vector<std::string> ids;
        for (const Display& display : displays) {
            ids.push_back(display.referenceID);
        }
        return ids;
    }
    PropertyValue playerServerInfoForScreen(TQPlayerServer&, const std::string& id) override {
        ++infosAsked;
        beforeInfo();
        for (std::size_t i = 0; i < displays.size(); ++i) {
            if (displays[i].referenceID == id && id != "gone") {
                return {{"number", i + 1},
                        {"local", displays[i].isLocal},
                        {"gamma", displays[i].gamma},
                        {"content", displays[i].content}};
            }
        }
        return nullptr;
    }
    PropertyValue playerServerStateForScreen(TQPlayerServer&, const std::string&) override {
        return nullptr;
    }
    void playerServerSetStateForScreen(TQPlayerServer&, const PropertyValue& state,
                                       const std::string& id) override {
        statesSet.emplace_back(id, state);
        for (Display& display : displays) {
            if (display.referenceID == id && !isStubborn) {
                display.gamma = state.value("gamma", PropertyValue::array());
                if (state.contains("content") && state["content"].is_string()) {
                    display.content = state["content"].get<std::string>();
                }
            }
        }
        afterSet();
    }
    void playerServerFailedBroadcastTest(TQPlayerServer&, std::uint64_t reason) override {
        failures.push_back(reason);
        afterFailure();
    }

    std::vector<Display> displays;
    /// Accepts states without applying them.
    bool isStubborn = false;
    std::function<void()> beforeInfo = [] {};
    std::function<void()> afterSet = [] {};
    std::function<void()> afterFailure = [] {};
    int infosAsked = 0;
    std::vector<std::pair<std::string, PropertyValue>> statesSet;
    std::vector<std::uint64_t> failures;
};

}  // namespace tonquil
