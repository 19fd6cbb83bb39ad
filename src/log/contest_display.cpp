#include "log/contest_display.h"

#include "contest/score.h"
#include "values/number.h"

namespace tallyhut {

ContestDisplay::ContestDisplay(Form1& mainForm, const Contest& shown, UtcClock& utc, SettingsStore& settings)
    : form{mainForm},
      contest{shown},
      list{mainForm, shown, utc.clock},
      grid{mainForm, shown},
      rates{mainForm, shown, utc},
      offTime{mainForm, shown, utc, settings} {}

void ContestDisplay::ShowCounts() {
    const ContactLog& log = contest.log;
    ShowTotals();
    form.lblNumCurCon.SetCaption(log.gContactCount() == 0 ? "1" : NumberForm(log.NextSerial()));
    form.lblsectogo.SetCaption(" " + NumberForm(contest.sections.gSectionCount - contest.sections.gSectionsWorked));
    counted();
}

/// The number form behind a further blank: two blanks stand before a number until the next commit writes none.
void ContestDisplay::ShowTotals() {
    const std::uint8_t worked = contest.sections.gSectionsWorked;
    form.lblTotSec.SetCaption(" " + NumberForm(worked));
    form.lblTotScore.SetCaption(" " + NumberForm(Score(worked, contest.log.gContactCount())));
    list.ListContacts();
    form.lblTotCon.SetCaption(" " + NumberForm(contest.log.gContactCount()));
}

void ContestDisplay::ShowScore() {
    const SectionTable& sections = contest.sections;
    form.lblTotSec.SetCaption(PlainText(sections.gSectionsWorked));
    form.lblsectogo.SetCaption(PlainText(sections.gSectionCount - sections.gSectionsWorked));
    form.lblTotScore.SetCaption(PlainText(Score(sections.gSectionsWorked, contest.log.gContactCount())));
    counted();
}

void ContestDisplay::ShowTimes() {
    rates.TimeStats();
    offTime.Show();
}

}  // namespace tallyhut
