#pragma once

#include <map>
#include <string_view>
#include <vector>

#include "forms/qt/form_layout.h"
#include "forms/qt/form_menus.h"

class QGridLayout;
class QBoxLayout;

namespace tallyhut {

/// The parts of the main form's window, each a grid of its own.
enum class Part {
    Entry,
    Message,
    Clock,
    OffTime,
    ContactsHead,
    Contacts,
    SectionsHead,
    Sections,
    Legend,
    Score,
    Spots,
    Extra
};

/// The main form's window: the entry row and its message line first, then clocks, contacts, sections and score. Where
/// each control stands is a row of a table; one that the table does not know stands in a row at the bottom.
class Form1Layout : public FormLayout {
public:
    Form1Layout(QWidget& window, FormMenus& menus);

    QWidget& ParentOf(const Control& control) override;
    void Add(ControlWidget& widget) override;
    void Remove(ControlWidget& widget) override;
    void Changed(ControlWidget& widget) override;
    void Settle() override;
    void Arrange() override;

private:
    void Build();
    void AddGrid(Part part, QWidget& panel, QBoxLayout& into, int stretch);
    void PlaceSections();
    void SizeSectionColumns();
    void PlaceSpots();
    void TieCaptions();
    void ShowPartsInUse();
    static Look LookOf(const Control& control, double base);
    /// Pixels of plain text in a window of the present size; all else is told in these.
    double Base() const;

    QWidget& window_;
    FormMenus& menus_;
    std::map<Part, QGridLayout*> grids_;
    std::vector<QWidget*> panels_;
    std::vector<ControlWidget*> widgets_;
    std::map<Part, std::vector<ControlWidget*>> parts_;  ///< the same, by the part that each is in
    std::vector<QBoxLayout*> boxes_;
    QWidget* clockPanel_ = nullptr;
    QWidget* extraPanel_ = nullptr;
    QWidget* spotsPanel_ = nullptr;
    QWidget* spotsRoom_ = nullptr;
    bool spotsStale_ = true;
    bool captionsTied_ = false;
    std::map<const Control*, Place> sectionPlaces_;  ///< of those shown, as they were when the grid was laid out
    int sectionColumns_ = 0;
    int columnsOfLastHeading_ = 1;
    bool sectionsStale_ = true;
};

/// The controls that the main form's table has places for, by full name; the sections have theirs from the program.
std::vector<std::string_view> NamesPlacedOnMainForm();
/// Those that its other tables speak of: captions and what they stand by, and what is announced.
std::vector<std::string_view> NamesSpokenOfOnMainForm();

}  // namespace tallyhut
