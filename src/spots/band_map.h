#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "contest/contest.h"
#include "log/panel.h"
#include "rig/rig_commands.h"
#include "spots/map_scale.h"
#include "spots/spot_posts.h"

namespace tallyhut {

/// What the main form shows of the spots.
enum class SpotDisplay { None, Map, List };

/// The radio that is chosen where there is none.
inline constexpr std::string_view kNoRig = "None";

/// The call goes into its field, as if it had been typed, and the entry flow moves on.
void WorkSpot(Panel& panel, const std::string& call);

/// What a mouse button on a map does to the spot: the right one tunes and works it; any other takes it off the maps,
/// and the answer is false.
bool Worked(Spot& spot, MouseButton button, Panel& panel, RigCommands& rig);

/// The spots on the main form: a map of the present band, or the list. Each redraw comes from the table of spots; the
/// captions of the scale are what places are worked out from.
struct BandMap {
    Panel& panel;
    const Contest& contest;
    SpotTable& table;
    SpotPosts& posts;
    RigCommands& rig;

    SpotFilter filter = {};                    ///< what map and list show
    std::vector<std::size_t> listedRows = {};  ///< of SpotPosts::listed, those that the list shows

    /// The map or the list takes its room from the list of contacts, or gives it back.
    void PacketResize(SpotDisplay display);
    /// Nothing while the map is not shown.
    void DisplayBandMapLabels();
    /// Writes the captions of the scale of the present band.
    void UpdateBandMapScale();
    /// Fills the list, whether it is shown or not.
    void ShowList();

    /// The rows of the table that have a place on the map, the lowest frequency first.
    std::vector<int> RowsShown() const;

    /// The right button works the spot; any other takes it off the map.
    void lblDXSpot_MouseDown(int Index, MouseButton Button);
    void lblDXSpot_MouseMove(int Index);
    void txtDX_Click();

private:
    /// A spot that has its place on the map.
    struct Shown {
        int row;
        double mark;  ///< top to bottom, where its frequency is
        const AgeRow* age;
    };

    void Draw();
    std::vector<Shown> SpotsOfTheScale() const;
    void PlaceLabels(const std::vector<Shown>& shown);
};

}  // namespace tallyhut
