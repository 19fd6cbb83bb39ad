#include "log/super_check_display.h"

namespace tallyhut {

void SuperCheckDisplay::Show() {
    const bool inUse = known.showsCalls && known.superCheck.Count() > 0;
    form.lblScp.SetVisible(inUse);
    form.lblScp.SetCaption(inUse ? SuperCheckLine(known.superCheck, form.txtCall.Text(), contest.log) : "");
}

}  // namespace tallyhut
