#include "app/look_menu.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace tallyhut {
namespace {

constexpr const char* kSection = "Machine";
constexpr const char* kKey = "Look";

struct LookRow {
    WindowLook look;
    std::string_view stored;
    MenuEntry Form1::*entry;
};

constexpr std::array<LookRow, 3> kLooks{{
    {WindowLook::Desktop, "Desktop", &Form1::mnuLookDesktop},
    {WindowLook::Light, "Light", &Form1::mnuLookLight},
    {WindowLook::Dark, "Dark", &Form1::mnuLookDark},
}};

}  // namespace

void LookMenu::Bind() {
    for (const LookRow& row : kLooks) {
        (form.*row.entry).Click = [this, &row] { Choose(row.look); };
    }
}

void LookMenu::ShowStored() {
    const std::string stored = settings.Get(kSection, kKey);
    const auto* const found = std::ranges::find(kLooks, stored, &LookRow::stored);
    Show(found == kLooks.end() ? kLooks.front().look : found->look);
}

void LookMenu::Show(WindowLook look) {
    for (const LookRow& row : kLooks) {
        (form.*row.entry).SetChecked(row.look == look);
    }
    if (show) {
        show(look);
    }
}

/// Shown before it is stored: a store that cannot be written keeps nobody from the look of this evening.
void LookMenu::Choose(WindowLook look) {
    Show(look);
    settings.Set(kSection, kKey, std::string{std::ranges::find(kLooks, look, &LookRow::look)->stored});
}

}  // namespace tallyhut
