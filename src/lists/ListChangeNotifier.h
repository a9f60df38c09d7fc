#pragma once

namespace Orva::Lists {

// Tells the agent that the files it reads have changed. Callers write the files first.
class IListChangeNotifier {
public:
    virtual ~IListChangeNotifier() = default;
    virtual void SenderListsChanged() = 0;
    virtual void EncodingsChanged() = 0;
};

}  // namespace Orva::Lists
