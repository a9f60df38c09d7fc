#pragma once

#include <string>

#include "common_src/platform/WindowMessaging.h"

namespace Orva::Ui {

// The window that shows a contact import going on and lets the user stop it.
class IImportProgress {
public:
    virtual ~IImportProgress() = default;
    virtual void Open() = 0;
    virtual void SetRange(int count) = 0;
    // The address being imported.
    virtual void ShowAddress(const std::wstring& address) = 0;
    virtual void Step() = 0;
    // Whether the user asked to stop; the window answers its user in the meantime.
    virtual bool Cancelled() = 0;
    virtual void Close() = 0;
};

// No window: nothing shown, never cancelled.
class CNullImportProgress final : public IImportProgress {
public:
    void Open() override {}
    void SetRange(int) override {}
    void ShowAddress(const std::wstring&) override {}
    void Step() override {}
    bool Cancelled() override { return false; }
    void Close() override {}
};

}  // namespace Orva::Ui
