#pragma once

#include <span>
#include <string_view>

namespace Orva::Ui {

// A control of a template and the string id of its text in the user's language.
struct ControlText {
    int controlId;
    std::wstring_view stringId;
};

// The localised texts of each template of the dialogs.
std::span<const ControlText> DefaultLevelTexts();
std::span<const ControlText> CustomLevelTexts();
std::span<const ControlText> CategoryLevelTexts();
std::span<const ControlText> WorryFreeLevelTexts();
std::span<const ControlText> AdvancedPageTexts();
std::span<const ControlText> ApprovedPageTexts();
std::span<const ControlText> BlockedPageTexts();
std::span<const ControlText> EditSenderTexts();
std::span<const ControlText> EncodingsPageTexts();
std::span<const ControlText> ConfirmationTexts();
std::span<const ControlText> AboutTexts();
std::span<const ControlText> FeedbackTexts();
// The statistics dialog's texts; its rate controls keep their template's format.
std::span<const ControlText> StatisticsDialogTexts();
std::span<const ControlText> ImportDialogTexts();
std::span<const ControlText> UpdatesTexts();
std::span<const ControlText> ProxyTexts();

// The updates schedule's combo box entries, in the order of its choices.
std::span<const std::wstring_view> IntervalNameIds();

// The three entries of every category's combo box, highest level first.
std::span<const std::wstring_view> LevelNameIds();

// The tab titles of the six pages, in page order.
std::span<const std::wstring_view> PageTitleIds();

}  // namespace Orva::Ui
