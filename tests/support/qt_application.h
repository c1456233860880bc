#pragma once

/// \file
/// Including this gives a test executable its one QApplication: offscreen unless the environment
/// says otherwise, made before the first test and gone after the last, while its platform is there.

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "kvopt/qt/qt_look.h"

namespace kvopt::test {

class QtApplicationOfTests : public testing::Environment {
public:
    void SetUp() override {
        if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
        }
        application_ = std::make_unique<QApplication>(count_, words_);
        // For pictures: KVOPT_DARK beside Qt's own QT_SCALE_FACTOR.
        const QtLook look{1.0, !qEnvironmentVariableIsEmpty("KVOPT_DARK")};
        look.ApplyColours();
    }
    void TearDown() override { application_.reset(); }

private:
    int count_ = 1;
    char name_[12] = "kvopt-tests";
    char* words_[2] = {name_, nullptr};
    std::unique_ptr<QApplication> application_;
};

inline testing::Environment* const qtApplicationOfTests =
    testing::AddGlobalTestEnvironment(new QtApplicationOfTests);

}  // namespace kvopt::test
