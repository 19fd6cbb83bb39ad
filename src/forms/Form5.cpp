#include "forms/Form5.h"

#include "forms/text_lengths.h"

namespace tallyhut {

Form5::Form5(Desk& owner)
    : Form{owner, "Form5", "Tallyhut Logging Program Help Page", {.width = 7680, .height = 6300}},
      Text1{*this,
            "Text1",
            {.place = {120, 120, 7440, 5520},
             .maxLength = kLongestPage,
             .tabIndex = 1,
             .fontSize = 10,
             .multiLine = true}},
      Command1{*this, "Command1", "Close", {.place = {6120, 5760, 1440, 420}, .tabIndex = 2}},
      Command2{*this,
               "Command2",
               "",
               {.place = {120, 5760, 420, 420}, .toolTip = "Write this text to HelpSB.txt", .tabIndex = 3}} {}

}  // namespace tallyhut
