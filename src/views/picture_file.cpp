#include "views/picture_file.h"

#include "platform/platform_error.h"
#include "reports/report_file.h"
#include "reports/saved_file.h"
#include "toolkit/desk.h"

namespace tallyhut {

void PictureFiles::Save(const Raster& picture, const std::string& name) const {
    Desk& desk = picture.form.desk;
    const FileRequest request = SaveRequest(directories, "PNG Pictures (*.png) | *.png", name);
    try {
        if (const std::optional<std::string> path = ChosenPath(desk.dialogs, directories, request)) {
            WriteReportFile(files, directories, *path, desk.PngOf(picture));
            desk.dialogs.Show(WrittenBox(*path));
        }
    } catch (const PlatformError& failure) {
        desk.dialogs.Show(NotWrittenBox(failure.what()));
    }
}

}  // namespace tallyhut
