#pragma once

#include "AutoMountNetworkDriveEditor.h"
#include "DriveEditorHelpers.h"
#include "TestBase.h"

#include <memory>

/// Base of the tests of the editor's form, which each find one of a complete drive, not shown yet.
class DriveEditorFormTest : public TestBase
{
protected:
    void prepare() override
    {
        editor = std::make_unique<AutoMountNetworkDriveEditor>(DriveEditorTest::completeDrive());
    }
    void finish() override { editor.reset(); }

    template<class Child>
    [[nodiscard]] Child *find(const QString &name) const
    {
        return editor->findChild<Child *>(name);
    }

    std::unique_ptr<AutoMountNetworkDriveEditor> editor;
};
