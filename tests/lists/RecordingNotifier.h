#pragma once

#include <string>

#include "ListTestFiles.h"
#include "lists/ListChangeNotifier.h"
#include "lists/SenderLists.h"

namespace Orva::Testing {

// Records what the agent would find on disk at the moment it is told.
class RecordingNotifier : public Lists::IListChangeNotifier {
public:
    explicit RecordingNotifier(std::wstring folder) : m_folder(std::move(folder)) {}
    void SenderListsChanged() override {
        ++senderLists;
        approvedOnDisk = ReadFileBytes(Lists::ApprovedListPath(m_folder));
        blockedOnDisk = ReadFileBytes(Lists::BlockedListPath(m_folder));
    }
    void EncodingsChanged() override {
        ++encodings;
        encodingsOnDisk = ReadFileBytes(Lists::EncodingsPath(m_folder));
    }

    int senderLists = 0;
    int encodings = 0;
    std::string approvedOnDisk;
    std::string blockedOnDisk;
    std::string encodingsOnDisk;

private:
    std::wstring m_folder;
};

}  // namespace Orva::Testing
