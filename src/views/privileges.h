#pragma once

#include <vector>

#include "forms/frmBandPlan.h"
#include "platform/files.h"
#include "rig/rig_line.h"
#include "support/directories.h"
#include "views/licence_segments.h"

namespace tallyhut {

/// What each class of licence may use of the bands, after BandPlan.txt.
struct Privileges {
    frmBandPlan& form;
    const Files& files;
    const Directories& directories;
    const RigLine& rigLine;

    std::vector<BandPlanRow> plan = {};   ///< of the file, in its order
    std::vector<LicenceBand> shown = {};  ///< of the class that is displayed, the upper line first

    void frmBandPlan_Load();
    void Form_Unload();
    /// Of the classes in the order of the buttons, from 0.
    void Class_Click(int which);
    void tmrRadio_Elapsed();

    /// Replaces the display by that of a class: a band to a line, its segments to scale.
    void ShowPrivileges(std::string_view ClassLetter);

private:
    void ReadPlan();
    void RemoveLabels();
    Place LineOf(std::size_t band) const;
    void AddBand(const LicenceBand& band, const Place& line);
    void AddScale(const LicenceBand& band, const Place& line);
    void AddSegments(const LicenceBand& band, const Place& line);
    void DrawBands();
};

}  // namespace tallyhut
