#include "log/section_colours.h"

namespace tallyhut {

void SectionColours::mnuColors_Click() {
    dialog.ShowModal();
    preferencesFile.SavePref();
    guard.Reopen();
}

void SectionColours::Form6_Load() {
    dialog.Label1.SetForeColor(preferences.gColorWorked);
    dialog.Label2.SetForeColor(preferences.gColorNeeded);
}

void SectionColours::Command1_Click() {
    Choose(preferences.gColorNeeded, dialog.Label2);
}

void SectionColours::Command3_Click() {
    Choose(preferences.gColorWorked, dialog.Label1);
}

void SectionColours::Command6_Click() {
    dialog.Unload();
}

void SectionColours::Choose(Colour& colour, Label& example) {
    if (const std::optional<Colour> chosen = desk.dialogs.ChooseColour(colour)) {
        colour = *chosen;
        example.SetForeColor(colour);
    }
}

}  // namespace tallyhut
