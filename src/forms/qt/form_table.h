#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tallyhut {

/// How the controls of a row are drawn beyond what they are.
enum class RowLook {
    Plain,
    Data,     ///< in fixed pitch, for what is compared by eye
    Reading,  ///< large and in fixed pitch, for what is read from afar
    Devices,  ///< with what the tool tip says of each choice beside it, quietly
};

/// One row of the table that says how a form is laid out. The rows stand in reading order, made by the functions below.
///
/// Controls are told by their full names with blanks between them: "txtFreq", "optComm(3)"; "optComm(0-9)" is ten of
/// them. Behind a colon stands how much room one asks for, in characters of its text, "txtFreq:12", or a star for all
/// that its line leaves: "txtFreq:*". Without it a control takes what its caption needs.
struct TableRow {
    enum class Kind { Column, Group, Line, Under, Grid, Below, Text, Fill, Sheet, OnSheet, Left, Right, Main };
    Kind kind;
    std::string_view caption = {};
    std::string_view controls = {};
    int number = 0;
    RowLook look = RowLook::Plain;
};

/// Where the text of a label on a sheet stands in the label's place.
enum class SheetText {
    Heads,  ///< at the upper left
    Begins,
    Centred,
    Ends,
    Within,  ///< centred, as much of it as has room: the place says more than the text
};

using FormTable = std::span<const TableRow>;

/// What follows stands in another column, to the right of the one before it. Of the room that is over a column gets its
/// share; one with share 0 stays as wide as what it holds.
constexpr TableRow Column(int share) {
    return {TableRow::Kind::Column, {}, {}, share};
}
/// What follows stands on a panel. Its title is the caption of a frame, or where no control has that name, the text as
/// it stands; behind the title stands the row that is selected in the list, if one is named.
constexpr TableRow Group(std::string_view title = {}, std::string_view list = {}) {
    return {TableRow::Kind::Group, title, list};
}
/// The same on a panel that takes the place of the so many panels before it, whenever something on it is shown. It must
/// need no more height than they do.
constexpr TableRow Instead(std::string_view title, int panels) {
    return {TableRow::Kind::Group, title, {}, panels};
}
/// Controls beside each other, behind the label or frame that names them. The captions of a column are equally wide.
constexpr TableRow OneLine(std::string_view caption, std::string_view controls, RowLook look = RowLook::Plain) {
    return {TableRow::Kind::Line, caption, controls, 0, look};
}
/// The same without a caption of its own, as if it went on the line above.
constexpr TableRow Under(std::string_view controls, RowLook look = RowLook::Plain) {
    return {TableRow::Kind::Under, {}, controls, 0, look};
}
/// The same in cells of one width, so many in a line.
constexpr TableRow Grid(std::string_view caption, std::string_view controls, int inALine,
                        RowLook look = RowLook::Plain) {
    return {TableRow::Kind::Grid, caption, controls, inALine, look};
}
/// Controls below the label that names them, for a long one.
constexpr TableRow Below(std::string_view caption, std::string_view controls, RowLook look = RowLook::Plain) {
    return {TableRow::Kind::Below, caption, controls, 0, look};
}
/// Labels with sentences to be read, each a paragraph.
constexpr TableRow Text(std::string_view labels) {
    return {TableRow::Kind::Text, {}, labels};
}
/// A list, a page or a picture that takes its share of the height which is over, below the label that names it.
constexpr TableRow Fill(std::string_view caption, std::string_view control, int share = 1,
                        RowLook look = RowLook::Plain) {
    return {TableRow::Kind::Fill, caption, control, share, look};
}
/// A picture, and with the rows behind it what lies on it and beside it: each where the form itself has it, drawn out
/// over all the room that is over, or with the proportions of the form.
constexpr TableRow Sheet(std::string_view picture, bool keepsProportions = false) {
    return {TableRow::Kind::Sheet, {}, picture, keepsProportions ? 1 : 0};
}
/// On the sheet above. "priv(*)" is all of a name, also those that are made while the program runs.
constexpr TableRow OnSheet(std::string_view controls, SheetText text = SheetText::Centred) {
    return {TableRow::Kind::OnSheet, {}, controls, static_cast<int>(text)};
}
/// The bar below all columns: buttons at its left and at its right, and behind those the form's main one.
constexpr TableRow Left(std::string_view buttons) {
    return {TableRow::Kind::Left, {}, buttons};
}
constexpr TableRow Right(std::string_view buttons) {
    return {TableRow::Kind::Right, {}, buttons};
}
constexpr TableRow Main(std::string_view button) {
    return {TableRow::Kind::Main, {}, button};
}

/// A control of a row, and the room that it asks for.
struct ToldControl {
    std::string name;
    int characters = 0;  ///< 0: what its caption needs
    bool fills = false;

    bool operator==(const ToldControl&) const = default;
};

/// What the text of a row tells.
std::vector<ToldControl> ControlsIn(std::string_view controls);

/// The table of a form of this name; empty for a form that has none.
FormTable TableOf(std::string_view formName);

// One unit a form, named as the form is.
extern const FormTable kBlindFrmTable;
extern const FormTable kCWFrmTable;
extern const FormTable kForm2Table;
extern const FormTable kForm5Table;
extern const FormTable kForm6Table;
extern const FormTable kFrmBandPlanTable;
extern const FormTable kFrmBndStatsTable;
extern const FormTable kFrmCWStringsTable;
extern const FormTable kFrmCheckLogTable;
extern const FormTable kFrmCodePracticeTable;
extern const FormTable kFrmEditConTable;
extern const FormTable kFrmFrequencyTestTable;
extern const FormTable kFrmImportTable;
extern const FormTable kFrmKnownCallsTable;
extern const FormTable kFrmNetworkTable;
extern const FormTable kFrmPortsTable;
extern const FormTable kFrmRigTuneTable;
extern const FormTable kFrmSectionsTable;
extern const FormTable kFrmStationIDTable;
extern const FormTable kFrmWinKeyTable;
extern const FormTable kGraphQSOTable;
extern const FormTable kPacketSpotfrmTable;
extern const FormTable kPhoneFrmTable;
extern const FormTable kRigControlfrmTable;
extern const FormTable kSectionMapTable;

}  // namespace tallyhut
