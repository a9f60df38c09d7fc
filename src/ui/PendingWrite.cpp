#include "ui/PendingWrite.h"

namespace Orva::Ui {

bool WritePending(const PendingWrites& writes, Settings::SettingsStore& settings,
                  ZelCommon::Library::DebugLog& log, std::wstring_view page) {
    bool allWritten = true;
    for (const PendingWrite& write : writes) {
        if (!settings.Set(write.id, write.value)) {
            log.LogText(L"xxx %s::OnApply() can't write [%s] %s=%s to %s", page,
                        settings.SectionOf(write.id), Settings::Entry(write.id).key, write.value,
                        settings.FileOf(write.id));
            allWritten = false;
        }
    }
    return allWritten;
}

}  // namespace Orva::Ui
