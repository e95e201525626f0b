#pragma once

#include "TXLogModel.h"

#include "LogTestHelpers.h"
#include "TestBase.h"

#include <memory>

/// Base of the tests of the log model, which each find an empty one over an empty log.
class LogModelTest : public TestBase
{
protected:
    void prepare() override
    {
        manager = QSharedPointer<TXLogManager>::create();
        model = std::make_unique<TXLogModel>(manager);
    }

    void finish() override
    {
        model.reset();
        manager.reset();
    }

    [[nodiscard]] TXLogItem &root() const { return *manager->rootItem(); }
    [[nodiscard]] QStringList texts() const { return LogTest::shownTexts(*model); }

    QSharedPointer<TXLogManager> manager;
    std::unique_ptr<TXLogModel> model;
};
