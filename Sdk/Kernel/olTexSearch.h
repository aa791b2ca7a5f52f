#pragma once

#include "Utilities/olExport.h"

#include <string>
#include <vector>

/// The directories in which textures are searched that do not lie where a model says.
class ORLO_SDK_EXPORT olTexSearch
{
public:
    /// Takes the list anew from the record's texture search paths: the directories that exist, in their order, each
    /// once. Empty when the record has no list.
    static void set();

    /// Absolute, in the order in which they are searched (UTF-8).
    static const std::vector<std::string> &directories();

    /// The file that a model means by a texture's path: an absolute one where such a file is, else a relative one in
    /// the first directory that has it, else its bare name likewise. Empty when there is none.
    static std::string find(const std::string &texture);

    /// The same in directories of the caller's choice; may be called in any thread.
    static std::string findIn(const std::vector<std::string> &directories, const std::string &texture);
};
