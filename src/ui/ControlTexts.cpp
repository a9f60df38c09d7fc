#include "ui/ControlTexts.h"

#include "ui/AboutIds.h"
#include "ui/ConfirmationIds.h"
#include "ui/DialogIds.h"
#include "ui/FeedbackIds.h"
#include "ui/ImportIds.h"
#include "ui/StatisticsIds.h"
#include "ui/UpdatesIds.h"

namespace Orva::Ui {
namespace {

constexpr ControlText kDefaultLevel[] = {
    {IDC_DEFAULT_TITLE, L"IDS_DEFAULT_LEVEL_TITLE"},
    {IDC_DEFAULT_NOTE, L"IDS_DEFAULT_LEVEL_NOTE"},
    {IDC_LABEL_HIGH, L"IDS_LEVEL_HIGH"},
    {IDC_LABEL_MEDIUM, L"IDS_LEVEL_MEDIUM"},
    {IDC_LABEL_LOW, L"IDS_LEVEL_LOW"},
    {IDC_CHECK_ENABLE_IN_THE_CLOUD, L"IDS_ENABLE_IN_THE_CLOUD"},
    {IDC_BUTTON_CUSTOM_LEVEL, L"IDS_CUSTOM_LEVEL_BUTTON"},
};

constexpr ControlText kCustomLevel[] = {
    {IDC_CUSTOM_TITLE, L"IDS_CUSTOM_LEVEL_TITLE"},
    {IDC_CUSTOM_NOTE, L"IDS_CUSTOM_LEVEL_NOTE"},
    {IDC_BUTTON_CUSTOMIZE, L"IDS_CUSTOMIZE_BUTTON"},
    {IDC_BUTTON_DEFAULT_LEVEL, L"IDS_DEFAULT_LEVEL_BUTTON"},
    {IDC_CHECK_ENABLE_IN_THE_CLOUD, L"IDS_ENABLE_IN_THE_CLOUD"},
};

constexpr ControlText kCategoryLevel[] = {
    {IDC_CATEGORY_NOTE, L"IDS_CATEGORY_NOTE"},
    {IDC_LABEL_SEXUAL, L"IDS_CATEGORY_SEXUAL"},
    {IDC_LABEL_COMMERCIAL, L"IDS_CATEGORY_COMMERCIAL"},
    {IDC_LABEL_FINANCIAL, L"IDS_CATEGORY_FINANCIAL"},
    {IDC_LABEL_HEALTH, L"IDS_CATEGORY_HEALTH"},
    {IDC_LABEL_OTHER, L"IDS_CATEGORY_OTHER"},
    {IDC_LABEL_RACIAL, L"IDS_CATEGORY_RACIAL"},
    {IDC_LABEL_SPIRITUAL, L"IDS_CATEGORY_SPIRITUAL"},
    {1 /* IDOK */, L"IDS_OK"},
    {2 /* IDCANCEL */, L"IDS_CANCEL"},
};

constexpr ControlText kWorryFreeLevel[] = {
    {IDC_WEXOR_TITLE, L"IDS_LINK_FILTER_TITLE"},         {IDC_WEXOR_NOTE, L"IDS_LINK_FILTER_NOTE"},
    {IDC_CHECK_ENABLE_WEXOR, L"IDS_ENABLE_LINK_FILTER"}, {IDC_WEXOR_LABEL_HIGH, L"IDS_LEVEL_HIGH"},
    {IDC_WEXOR_LABEL_MEDIUM, L"IDS_LEVEL_MEDIUM"},       {IDC_WEXOR_LABEL_LOW, L"IDS_LEVEL_LOW"},
};

constexpr ControlText kAdvancedPage[] = {
    {IDC_SPAM_FOLDER_TITLE, L"IDS_SPAM_FOLDER_TITLE"},
    {IDC_CHECK_AUTO_MOVED, L"IDS_AUTO_DELETE_SPAM"},
    {IDC_DAYS_LABEL, L"IDS_DAYS"},
    {IDC_BUTTON_DELETE_NOW, L"IDS_DELETE_NOW"},
    {IDC_DELETED_TITLE, L"IDS_DELETED_ITEMS_TITLE"},
    {IDC_CHECK_DELETE_DELETED, L"IDS_DELETE_DELETED"},
    {IDC_NOTIFY_TITLE, L"IDS_NOTIFY_TITLE"},
    {IDC_CHECK_NOTIFY_ICON, L"IDS_NOTIFY_ICON"},
};

constexpr ControlText kApprovedPage[] = {
    {IDC_LIST_TITLE, L"IDS_PAGE_APPROVED"},
    {IDC_LIST_NOTE, L"IDS_APPROVED_NOTE"},
    {IDC_BUTTON_ADD_SENDER, L"IDS_BUTTON_ADD_SENDER"},
    {IDC_BUTTON_EDIT_SENDER, L"IDS_BUTTON_EDIT_SENDER"},
    {IDC_BUTTON_REMOVE_SENDER, L"IDS_BUTTON_REMOVE_SENDER"},
    {IDC_BUTTON_IMPORT_CONTACTS, L"IDS_BUTTON_IMPORT_CONTACTS"},
    {IDC_CHECK_AUTO_APPROVE, L"IDS_CHECK_AUTO_APPROVE"},
};

constexpr ControlText kBlockedPage[] = {
    {IDC_LIST_TITLE, L"IDS_PAGE_BLOCKED"},
    {IDC_LIST_NOTE, L"IDS_BLOCKED_NOTE"},
    {IDC_BUTTON_ADD_SENDER, L"IDS_BUTTON_ADD_SENDER"},
    {IDC_BUTTON_EDIT_SENDER, L"IDS_BUTTON_EDIT_SENDER"},
    {IDC_BUTTON_REMOVE_SENDER, L"IDS_BUTTON_REMOVE_SENDER"},
};

constexpr ControlText kEditSender[] = {
    {IDC_LABEL_SENDER_NAME, L"IDS_LABEL_SENDER_NAME"},
    {IDC_LABEL_SENDER_ADDRESS, L"IDS_LABEL_SENDER_ADDRESS"},
    {1 /* IDOK */, L"IDS_OK"},
    {2 /* IDCANCEL */, L"IDS_CANCEL"},
};

constexpr ControlText kEncodingsPage[] = {
    {IDC_LIST_TITLE, L"IDS_PAGE_ENCODINGS"},
    {IDC_LIST_NOTE, L"IDS_ENCODINGS_NOTE"},
};

constexpr ControlText kConfirmation[] = {
    {IDC_CHECK_DONT_SHOW_AGAIN, L"IDS_DONT_SHOW_AGAIN"},
    {1 /* IDOK */, L"IDS_OK"},
};

constexpr ControlText kAbout[] = {
    {IDC_ABOUT_ENGINE_LABEL, L"IDS_ABOUT_ENGINE_VERSION"},
    {IDC_ABOUT_PATCH_LABEL, L"IDS_ABOUT_PATTERN_VERSION"},
    {IDC_ABOUT_FILE_LABEL, L"IDS_ABOUT_ADDIN_VERSION"},
    {IDC_ABOUT_BUILD_LABEL, L"IDS_ABOUT_BUILD"},
    {IDC_ABOUT_FEEDBACK, L"IDS_ABOUT_FEEDBACK_BUTTON"},
    {IDC_ABOUT_UPDATES, L"IDS_ABOUT_UPDATES_BUTTON"},
    {1 /* IDOK */, L"IDS_OK"},
};

constexpr ControlText kFeedback[] = {
    {IDC_FEEDBACK_TITLE, L"IDS_WTC_TITLE"}, {IDC_FEEDBACK_DESCRIPTION, L"IDS_WTC_DESCRIPTION"},
    {IDC_FEEDBACK_YES, L"IDS_WTC_YES"},     {IDC_FEEDBACK_NO, L"IDS_WTC_NO"},
    {IDC_FEEDBACK_LINK, L"IDS_WTC_LINK"},   {1 /* IDOK */, L"IDS_OK"},
    {2 /* IDCANCEL */, L"IDS_CANCEL"},
};

constexpr ControlText kImportDialog[] = {
    {IDC_IMPORT_TITLE, L"IDS_IMPORT_TITLE"},
    {2 /* IDCANCEL */, L"IDS_CANCEL"},
};

constexpr ControlText kStatisticsDialog[] = {
    {IDC_STAT_TITLE, L"IDS_STAT_TITLE"},
    {IDC_STAT_SINCE_LABEL, L"IDS_STAT_SINCE"},
    {IDC_STAT_MESSAGES_TITLE, L"IDS_STAT_MESSAGES_TITLE"},
    {IDC_STAT_PROCESSED_LABEL, L"IDS_STAT_PROCESSED"},
    {IDC_STAT_DETECTED_LABEL, L"IDS_STAT_DETECTED"},
    {IDC_STAT_REPORTED_LABEL, L"IDS_STAT_REPORTED"},
    {IDC_STAT_REPORTED_FP_LABEL, L"IDS_STAT_REPORTED_FP"},
    {IDC_STAT_RATES_TITLE, L"IDS_STAT_RATES_TITLE"},
    {IDC_STAT_DETECTION_RATE_LABEL, L"IDS_STAT_DETECTION_RATE"},
    {IDC_STAT_FP_RATE_LABEL, L"IDS_STAT_FP_RATE"},
    {IDC_STAT_CHART_TITLE, L"IDS_STAT_CHART_TITLE"},
    {IDC_STAT_RESET, L"IDS_STAT_RESET"},
    {1 /* IDOK */, L"IDS_OK"},
};

constexpr ControlText kUpdates[] = {
    {IDC_UPDATES_GROUP, L"IDS_UPDATES_GROUP"},
    {IDC_UPDATES_ENGINE_LABEL, L"IDS_ABOUT_ENGINE_VERSION"},
    {IDC_UPDATES_PATTERN_LABEL, L"IDS_ABOUT_PATTERN_VERSION"},
    {IDC_UPDATES_AGENT_LABEL, L"IDS_UPDATES_AGENT_VERSION"},
    {IDC_UPDATES_LAST_LABEL, L"IDS_UPDATES_LAST"},
    {IDC_UPDATES_NOW, L"IDS_UPDATES_NOW"},
    {IDC_UPDATES_SCHEDULE_GROUP, L"IDS_UPDATES_SCHEDULE_TITLE"},
    {IDC_UPDATES_SCHEDULED, L"IDS_UPDATES_SCHEDULED"},
    {IDC_UPDATES_EVERY_LABEL, L"IDS_UPDATES_EVERY"},
    {IDC_UPDATES_SILENT, L"IDS_UPDATES_SILENT"},
    {IDC_UPDATES_PROXY, L"IDS_UPDATES_PROXY_BUTTON"},
    {IDC_UPDATES_HELP, L"IDS_HELP"},
    {1 /* IDOK */, L"IDS_OK"},
    {2 /* IDCANCEL */, L"IDS_CANCEL"},
};

constexpr ControlText kProxy[] = {
    {IDC_PROXY_TITLE, L"IDS_PROXY_TITLE"},
    {IDC_PROXY_ENABLE, L"IDS_PROXY_ENABLE"},
    {IDC_PROXY_HOST_LABEL, L"IDS_PROXY_HOST"},
    {IDC_PROXY_PORT_LABEL, L"IDS_PROXY_PORT"},
    {IDC_PROXY_USER_LABEL, L"IDS_PROXY_USER"},
    {IDC_PROXY_PASSWORD_LABEL, L"IDS_PROXY_PASSWORD"},
    {1 /* IDOK */, L"IDS_OK"},
    {2 /* IDCANCEL */, L"IDS_CANCEL"},
};

// In the order of the schedule's choices: 1, 3, 6, 9 and 12 hours, one and two days.
constexpr std::wstring_view kIntervalNames[] = {
    L"IDS_INTERVAL_60",  L"IDS_INTERVAL_180",  L"IDS_INTERVAL_360",  L"IDS_INTERVAL_540",
    L"IDS_INTERVAL_720", L"IDS_INTERVAL_1440", L"IDS_INTERVAL_2880",
};

constexpr std::wstring_view kLevelNames[] = {L"IDS_LEVEL_HIGH", L"IDS_LEVEL_MEDIUM",
                                             L"IDS_LEVEL_LOW"};

constexpr std::wstring_view kPageTitles[] = {
    L"IDS_PAGE_DETECTION", L"IDS_PAGE_LINK_FILTER", L"IDS_PAGE_APPROVED",
    L"IDS_PAGE_BLOCKED",   L"IDS_PAGE_ENCODINGS",   L"IDS_PAGE_ADVANCED",
};

}  // namespace

std::span<const ControlText> DefaultLevelTexts() {
    return kDefaultLevel;
}
std::span<const ControlText> CustomLevelTexts() {
    return kCustomLevel;
}
std::span<const ControlText> CategoryLevelTexts() {
    return kCategoryLevel;
}
std::span<const ControlText> WorryFreeLevelTexts() {
    return kWorryFreeLevel;
}
std::span<const ControlText> AdvancedPageTexts() {
    return kAdvancedPage;
}
std::span<const ControlText> ApprovedPageTexts() {
    return kApprovedPage;
}
std::span<const ControlText> BlockedPageTexts() {
    return kBlockedPage;
}
std::span<const ControlText> EditSenderTexts() {
    return kEditSender;
}
std::span<const ControlText> EncodingsPageTexts() {
    return kEncodingsPage;
}
std::span<const ControlText> ConfirmationTexts() {
    return kConfirmation;
}
std::span<const ControlText> AboutTexts() {
    return kAbout;
}
std::span<const ControlText> FeedbackTexts() {
    return kFeedback;
}
std::span<const ControlText> ImportDialogTexts() {
    return kImportDialog;
}
std::span<const ControlText> StatisticsDialogTexts() {
    return kStatisticsDialog;
}
std::span<const ControlText> UpdatesTexts() {
    return kUpdates;
}
std::span<const ControlText> ProxyTexts() {
    return kProxy;
}
std::span<const std::wstring_view> IntervalNameIds() {
    return kIntervalNames;
}
std::span<const std::wstring_view> LevelNameIds() {
    return kLevelNames;
}
std::span<const std::wstring_view> PageTitleIds() {
    return kPageTitles;
}

}  // namespace Orva::Ui
