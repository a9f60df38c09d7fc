#include "lists/SenderLists.h"

#include "common_src/platform/Path.h"

namespace Orva::Lists {

std::wstring ApprovedListPath(const std::wstring& dataFolder) {
    return ZelCommon::Path::ChildFile(dataFolder, ApprovedList::kFileName);
}

std::wstring BlockedListPath(const std::wstring& dataFolder) {
    return ZelCommon::Path::ChildFile(dataFolder, BlockedList::kFileName);
}

void ApplySenderLists(CWListSet& approved, CBListSet& blocked, const std::wstring& dataFolder,
                      IListChangeNotifier& notifier) {
    approved.Save(ApprovedListPath(dataFolder));
    blocked.Save(BlockedListPath(dataFolder));
    notifier.SenderListsChanged();
}

std::wstring EncodingsPath(const std::wstring& dataFolder) {
    return ZelCommon::Path::ChildFile(dataFolder, kEncodingsFileName);
}

void ApplyEncodings(const CEncodingSet& encodings, const std::wstring& dataFolder,
                    IListChangeNotifier& notifier) {
    encodings.Save(EncodingsPath(dataFolder));
    notifier.EncodingsChanged();
}

}  // namespace Orva::Lists
