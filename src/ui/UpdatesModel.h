#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "common_src/ZelCommon/RegistryApi.h"
#include "common_src/platform/ProcessLauncher.h"
#include "common_src/platform/WindowMessaging.h"
#include "ui/PageServices.h"

namespace Orva::Ui {

// The schedule's combo box: the index shown for a stored Interval (the smallest choice not
// below it, the last one above 1440), and the minutes written for an index (2880 for any index
// past the table).
int ScheduleIndexOf(int32_t storedMinutes);
int32_t ScheduleMinutesAt(int index);
inline constexpr int kScheduleChoiceCount = 7;

// How old the rules are: never updated, current, or updated seven days ago or longer.
enum class UpdateAge { Never, Current, Stale };
inline constexpr int64_t kStaleAfterSeconds = 604800;
// Both times in seconds since 1970-01-01 UTC; a last update in the future is current.
UpdateAge AgeOf(int64_t lastUpdate, int64_t now);

// The updates dialog's choices, as read and as the controls show them.
struct UpdateChoices {
    bool scheduled = true;
    // "Update silently" checked: UpdateUI is 0.
    bool silent = true;
    int scheduleIndex = 1;

    friend bool operator==(const UpdateChoices&, const UpdateChoices&) = default;
};

// What the agent writes and the dialog shows as it is.
struct UpdateStatus {
    std::wstring engineVersion;
    std::wstring patternVersion;
    std::wstring agentVersion;
    int64_t lastUpdate = 0;
    int32_t upToDate = 0;

    friend bool operator==(const UpdateStatus&, const UpdateStatus&) = default;
};

// What a key typed in the dialog does.
enum class DialogKey { None, Ok, Cancel, Swallow };
// Alt+C cancels; Alt+O presses OK while it is enabled and is swallowed otherwise. Only the key's
// press acts; its other messages are swallowed.
DialogKey UpdatesDialogKey(uint32_t message, uintptr_t key, bool altDown, bool okEnabled);

// The machine facts the updates dialog reads and the programs it starts.
struct UpdatesPorts {
    ZelCommon::Storage::IRegistryApi& registry;
    ZelCommon::Platform::IWindowMessaging& windows;
    ZelCommon::Platform::IProcessLauncher& launcher;
};

// The updates dialog without its window. The schedule is read once; the versions and the last
// update are read again on each refresh, since the agent rewrites them while an update runs.
// OK writes EnableSchedule, UpdateUI and Interval; the agent itself does every update.
class CUpdatesModel {
public:
    // `programFolder` is the add-in's folder, with its final separator.
    CUpdatesModel(PageServices& services, const UpdatesPorts& ports, std::wstring programFolder);

    const UpdateChoices& Choices() const { return m_choices; }
    const UpdateStatus& Status() const { return m_status; }

    // Reads the agent's figures again; true when any of them changed.
    bool Refresh();

    // The last update's line: the never-updated text, or `localDate`, a blank and whether the
    // rules are current at `now`.
    std::wstring LastUpdateText(std::wstring_view localDate, int64_t now) const;
    // Never updated, or seven days ago or longer.
    bool IsLastUpdateRed(int64_t now) const;
    // The group frame's text: the installation's ASGroupTitle when set, else `localised`, with
    // the spam name put in.
    std::wstring GroupTitle(std::wstring_view localised) const;

    // A control changed: OK becomes enabled and stays so.
    void NoteChange() { m_changed = true; }
    bool IsOkEnabled() const { return m_changed; }
    // OK: does nothing while the security suite is busy (false, the dialog stays); else writes
    // the shown choices and returns true.
    bool Confirm(const UpdateChoices& shown);

    // Asks the agent for an update now, unless the suite's version says it updates itself.
    void UpdateNow();
    // The help viewer's argument string, and the start of the viewer; false when it could not
    // be started (logged).
    std::wstring HelpArguments() const;
    bool OpenHelp();

private:
    UpdateStatus ReadStatus() const;

    PageServices& m_services;
    UpdatesPorts m_ports;
    std::wstring m_programFolder;
    UpdateChoices m_choices;
    UpdateStatus m_status;
    bool m_changed = false;
};

}  // namespace Orva::Ui
