// forms_tests [WIDTHxHEIGHT [SCALE [LOOK]]]: the windows of these tests stand on a screen of that size, which nobody
// sees, "light" or "dark".

#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryFile>

#include "forms/qt/palettes.h"
#include "forms/qt/program_style.h"
#include "tests/forms/shown_program.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QString wanted = argc > 1 ? argv[1] : "1280x800";
    const QString scale = argc > 2 ? argv[2] : "1";
    const QString look = argc > 3 ? argv[3] : "light";
    const QStringList size = wanted.split('x');
    QTemporaryFile screens;
    if (!screens.open() || size.count() != 2) {
        return 1;
    }
    screens.write(QString{R"({"screens": [{"name": "one", "x": 0, "y": 0, "width": %1, "height": %2, "dpr": 1,
                              "logicalDpi": 96, "logicalBaseDpi": 96}]})"}
                      .arg(size[0], size[1])
                      .toUtf8());
    screens.flush();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + screens.fileName().toUtf8());
    qputenv("QT_SCALE_FACTOR", scale.toUtf8());
    tallyhut::ScreenName() = (wanted + '@' + scale + '-' + look).toStdString();
    QApplication application{argc, argv};
    QApplication::setStyle(new tallyhut::ProgramStyle);
    QApplication::setPalette(look == "dark" ? tallyhut::DarkPalette() : tallyhut::LightPalette());
    return RUN_ALL_TESTS();
}
