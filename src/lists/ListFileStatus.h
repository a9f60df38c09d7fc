#pragma once

namespace Orva::Lists {

// What loading a list file found. The list is empty unless it was Loaded.
enum class ListLoad {
    Absent,          // no such file: a new list
    Loaded,          // its header was accepted and its records read
    RejectedHeader,  // its first line is not a list header of the family's products
    Unreadable,      // it exists but could not be read
};

// What saving a list file did.
enum class ListSave {
    Saved,
    Unwritable,       // the old file, if any, stays as it was
    KeptRefusedFile,  // not written: the file is one that the list's load refused
};

// Whether a load leaves the file open to being written over.
inline bool MayWriteOver(ListLoad load) {
    return load == ListLoad::Absent || load == ListLoad::Loaded;
}

}  // namespace Orva::Lists
