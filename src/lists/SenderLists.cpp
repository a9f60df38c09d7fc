#include "lists/SenderLists.h"

#include "common_src/platform/Path.h"
#include "lists/ListKinds.h"

namespace Orva::Lists {

std::wstring ApprovedListPath(const std::wstring& dataFolder) {
    return ZelCommon::Path::ChildFile(dataFolder, ApprovedList::kFileName);
}

std::wstring BlockedListPath(const std::wstring& dataFolder) {
    return ZelCommon::Path::ChildFile(dataFolder, BlockedList::kFileName);
}

SenderListPaths SenderListPathsIn(const std::wstring& dataFolder) {
    return {ApprovedListPath(dataFolder), BlockedListPath(dataFolder)};
}

std::wstring EncodingsPath(const std::wstring& dataFolder) {
    return ZelCommon::Path::ChildFile(dataFolder, kEncodingsFileName);
}

bool ApplyEncodings(const CEncodingSet& encodings, const std::wstring& dataFolder,
                    IListChangeNotifier& notifier) {
    if (encodings.Save(EncodingsPath(dataFolder)) != 0) {
        return false;
    }
    notifier.EncodingsChanged();
    return true;
}

}  // namespace Orva::Lists
