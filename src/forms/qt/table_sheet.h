#pragma once

#include <QRect>
#include <QSize>

#include "forms/qt/table_parts.h"

namespace tallyhut {

/// The room that what lies on a sheet asks for, in pixels; the sheet itself asks for so many each way.
QSize NeedOfSheet(const TableLine& sheet, double least);
/// Puts a picture and what lies on it and beside it into the room, each where the form's design has it.
void PlaceSheet(const TableLine& sheet, const QRect& room);
/// A line of a sheet, over all else, where the form has it beside the picture now.
void PlaceBesidePicture(ControlWidget& line, ControlWidget& picture);

}  // namespace tallyhut
