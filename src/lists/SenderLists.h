#pragma once

#include <string>

#include "lists/EncodingSet.h"
#include "lists/ListChangeNotifier.h"
#include "lists/SenderListSet.h"

namespace Orva::Lists {

// The two list files of a data folder (which ends with its separator, or is empty).
std::wstring ApprovedListPath(const std::wstring& dataFolder);
std::wstring BlockedListPath(const std::wstring& dataFolder);

// Saves both lists together, as the agent expects them to agree, then tells the agent.
void ApplySenderLists(CWListSet& approved, CBListSet& blocked, const std::wstring& dataFolder,
                      IListChangeNotifier& notifier);

std::wstring EncodingsPath(const std::wstring& dataFolder);

// Saves the blocked encodings, then tells the agent.
void ApplyEncodings(const CEncodingSet& encodings, const std::wstring& dataFolder,
                    IListChangeNotifier& notifier);

}  // namespace Orva::Lists
