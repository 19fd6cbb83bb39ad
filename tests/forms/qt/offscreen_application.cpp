// What is of Qt needs an application: one without a screen, and without the printers of whoever runs the tests.

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace tallyhut {
namespace {

class OffscreenApplication : public testing::Environment {
public:
    void SetUp() override {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("CUPS_SERVER", "/nowhere");
        application_ = std::make_unique<QApplication>(argc_, argv_);
    }
    void TearDown() override { application_.reset(); }

private:
    int argc_ = 1;
    char name_[11] = "qt_drawing";
    char* argv_[2] = {name_, nullptr};
    std::unique_ptr<QApplication> application_;
};

const auto* const kApplication = testing::AddGlobalTestEnvironment(new OffscreenApplication);

}  // namespace
}  // namespace tallyhut
