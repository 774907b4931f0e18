#include "services/file_complaints.h"

#include "core/numbers.h"

#include <algorithm>

namespace orvane {

Complaint AboutFiles(TextView words, const std::vector<Text>& names)
{
    constexpr std::size_t most = 20; // more would not fit on the screen
    Complaint complaint{.Words = Text(words), .Control = {}};
    for (std::size_t i = 0; i < std::min(names.size(), most); ++i)
        complaint.Words += Join({lineEnd, names[i]});
    if (names.size() > most)
        complaint.Words += Join({lineEnd, u"and ", NumberToText(names.size() - most), u" more"});
    return complaint;
}

void FileComplaints::Add(const Complaint& complaint, TextView name)
{
    Text words = complaint.Words;
    if (const Text line = Join({lineEnd, name}); words.ends_with(line))
        words.resize(words.size() - line.size());
    const auto same = std::ranges::find(m_files, words, &std::pair<Text, std::vector<Text>>::first);
    if (same != m_files.end())
        same->second.emplace_back(name);
    else
        m_files.push_back({words, {Text(name)}});
}

std::vector<Complaint> FileComplaints::All() const
{
    std::vector<Complaint> complaints;
    for (const auto& [words, names] : m_files)
        complaints.push_back(AboutFiles(words, names));
    return complaints;
}

} // namespace orvane
