#pragma once

#include "core/complaint.h"

#include <utility>
#include <vector>

namespace orvane {

/// The complaint about these files: the words, and each name in a line of its own. Of more than 20
/// names the last line tells how many are left.
Complaint AboutFiles(TextView words, const std::vector<Text>& names);

/// What speaks against files of which several came at once.
class FileComplaints
{
public:
    /// Notes a complaint about one file, whose name may be its last line already.
    void Add(const Complaint& complaint, TextView name);

    /// Each complaint once, about all its files.
    std::vector<Complaint> All() const;

private:
    std::vector<std::pair<Text, std::vector<Text>>> m_files; ///< names under their words
};

} // namespace orvane
