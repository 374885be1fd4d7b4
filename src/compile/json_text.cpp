// SPDX-License-Identifier: MIT
#include "compile/json_text.h"

#include <nlohmann/json.hpp>

#include "platform/numbers.h"

namespace quorvane {

namespace {

using Json = nlohmann::ordered_json;

std::string TextOf(const Json& json) {
    return json.dump(-1, ' ', false, Json::error_handler_t::replace) + "\n";
}

template <class Slots>
Json SlotsJson(const Description& boxes, const Slots& slots) {
    using Kind = DescribedSlot::Kind;
    Json list = Json::array();
    for (const auto& slot : slots) {
        if (slot.State == Kind::Open) {
            list.push_back(nullptr);
        } else if (slot.State == Kind::Locked) {
            list.push_back(false);
        } else {
            list.push_back(FarId(boxes, slot));
        }
    }
    return list;
}

}  // namespace

std::string FindingsJson(const std::vector<FileFindings>& files) {
    Json list = Json::array();
    for (const auto& file : files) {
        for (const auto& finding : file.Findings) {
            const Json box = finding.Box > 0 ? Json(finding.Box) : Json(nullptr);
            list.push_back({{"file", file.File},
                            {"box", box},
                            {"finding", finding.Text},
                            {"advice", finding.Advice}});
        }
    }
    return TextOf(list);
}

std::string DescriptionJson(const std::string& file, const Description& boxes) {
    Json list = Json::array();
    for (const auto& box : boxes) {
        list.push_back({{"id", box.Id},
                        {"type", box.Type},
                        {"text", DescribedText(boxes, box)},
                        {"left", box.Left},
                        {"top", box.Top},
                        {"inputs", SlotsJson(boxes, box.Entries)},
                        {"exits", SlotsJson(boxes, box.Exits)}});
    }
    return TextOf({{"file", file}, {"boxes", list}});
}

}  // namespace quorvane
