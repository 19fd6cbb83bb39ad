#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/control.h"

namespace tallyhut {

struct Desk;
struct MenuEntry;

struct FormDesign {
    double width = 9600;
    double height = 7200;
    /// Enter clicks Done, OK or Close, and Esc closes, where no handler of the form's own takes the key.
    bool dialog = true;
    /// Shown, but keys never go to it.
    bool neverActive = false;
};

/// A named set of controls with one focus. Its controls register themselves when they are made and stay for the form's
/// life; being loaded means that their values are in use.
struct Form {
    Form(Desk& owner, std::string formName, std::string caption, const FormDesign& formDesign);
    ~Form();
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;
    Form(Form&&) = delete;
    Form& operator=(Form&&) = delete;

    Desk& desk;
    const std::string name;
    const FormDesign design;

    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string_view caption);
    const Place& FormPlace() const { return place_; }
    void SetFormPlace(const Place& place);
    bool IsLoaded() const { return loaded_; }
    bool IsVisible() const { return visible_; }
    bool IsMinimised() const { return minimised_; }
    bool IsModal() const { return modal_; }
    bool IsActive() const;

    /// First use: runs Form_Load. A loaded form is left alone.
    void Load();
    /// Loads if need be, shows, and makes the form the active one unless a modal form stands over it.
    void Show();
    /// Shows the form over all others and returns when it has been hidden; events run meanwhile.
    void ShowModal();
    void Hide();
    /// Runs Form_Unload and gives the form its design's size and every control its design value back, without handlers.
    void Unload();
    /// The close box: Form_QueryUnload may refuse, or hide the form instead; else the form unloads.
    void RequestClose();
    void Minimise();
    void Restore();

    Control* Focus() const { return focus_; }
    const std::vector<Control*>& Controls() const { return controls_; }
    /// By its full name, "txtCall" or "Label10(3)"; null where there is none.
    Control* Find(std::string_view fullName) const;
    const std::vector<MenuEntry*>& Menus() const { return menus_; }
    /// The controls that Tab visits, in order; of a group of options only the chosen one or else the first.
    std::vector<Control*> TabStops() const;

    std::function<void()> Form_Load;
    std::function<void()> Form_Activate;
    std::function<void(bool& Cancel)> Form_QueryUnload;
    std::function<void()> Form_Unload;
    std::function<void()> Form_Resize;
    /// Before anything takes a key that comes to the form: access keys and menus included, which no KeyDown sees.
    std::function<void()> Form_AnyKey;
    std::function<void(int& KeyCode, int Shift)> Form_KeyDown;
    std::function<void(int& KeyAscii)> Form_KeyPress;

private:
    friend struct Desk;
    friend struct Control;
    friend struct MenuEntry;

    void RestartTimers();
    void KeepDesign();
    void RestoreDesign();
    void FocusLowestTabStop();
    void FocusMayHaveGone(const Control& control);

    std::string caption_;
    std::string designCaption_;
    Place place_;
    bool loaded_ = false;
    bool visible_ = false;
    bool minimised_ = false;
    bool modal_ = false;
    bool shownBefore_ = false;  ///< since it was loaded
    bool designKept_ = false;
    Control* focus_ = nullptr;
    std::vector<Control*> controls_;
    std::vector<MenuEntry*> menus_;
};

}  // namespace tallyhut
