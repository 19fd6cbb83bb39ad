#include "reports/dupe_sheet.h"

#include <algorithm>

#include "contest/score.h"
#include "contest/section_table.h"
#include "reports/column_writer.h"
#include "reports/report_text.h"

namespace tallyhut {
namespace {

constexpr std::size_t kLinesPerPage = 56;
constexpr int kCallColumn = 5;
constexpr int kRightColumn = 52;

char CallArea(const std::string& call) {
    const std::size_t digit = call.find_first_of("0123456789");
    return digit == std::string::npos ? ' ' : call[digit];
}

std::string TotalsLine(std::size_t calls, int sectionsWorked) {
    const auto contacts = static_cast<std::int32_t>(calls);
    return "Total Contacts" + NumberForm(contacts) + "   Total Sections" + NumberForm(sectionsWorked) +
           "  Total Score" + NumberForm(Score(sectionsWorked, contacts));
}

PrintedPage PageHead(const Preferences& station) {
    ColumnWriter lines;
    lines.EndLine();
    lines.Line(std::string(38, ' ') + "ARRL Sweepstakes");
    lines.Line(std::string(43, ' ') + "Dupe Sheet");
    lines.EndLine();
    lines.Text("   Call Used: " + station.gOwnCall).At(kRightColumn, "ARRL Section: ").Line(station.gOwnSection);
    lines.Text("   Sent: " + SentExchange(station)).At(kRightColumn, ContestWords(station)).EndLine();
    lines.EndLine().EndLine();
    return lines.Lines();
}

}  // namespace

std::vector<std::string> CallsByArea(const ContactLog& log) {
    std::vector<std::string> keys;
    keys.reserve(static_cast<std::size_t>(log.gContactCount()));
    for (std::int32_t n = 1; n <= log.gContactCount(); ++n) {
        const std::string& call = log.Row(n).Call;
        keys.push_back(CallArea(call) + call);
    }
    std::ranges::sort(keys);
    for (std::string& key : keys) {
        key.erase(0, 1);
    }
    return keys;
}

std::vector<std::string> DupeFile(const std::vector<std::string>& calls, int sectionsWorked) {
    std::vector<std::string> lines = calls;
    lines.emplace_back();
    lines.push_back(TotalsLine(calls.size(), sectionsWorked));
    return lines;
}

std::vector<PrintedPage> DupePages(const std::vector<std::string>& calls, int sectionsWorked,
                                   const Preferences& station) {
    PageBreaker sheet{PageHead(station), kLinesPerPage};
    for (const std::string& call : calls) {
        sheet.Item(ColumnWriter{}.At(kCallColumn, call).EndLine().Lines());
    }
    sheet.Tail({"", "   " + TotalsLine(calls.size(), sectionsWorked)});
    return sheet.Pages();
}

}  // namespace tallyhut
