// The windows of these tests stand on a screen of the size in TALLYHUT_SCREEN ("1280x800"), which nobody sees.

#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryFile>

#include "forms/qt/program_style.h"

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QStringList size = qEnvironmentVariable("TALLYHUT_SCREEN", "1280x800").split('x');
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
    QApplication application{argc, argv};
    QApplication::setStyle(new tallyhut::ProgramStyle);
    return RUN_ALL_TESTS();
}
