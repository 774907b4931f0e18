#include "disk/disk_file_store.h"
#include "effects/text/status_bar_ticker.h"
#include "insertion/auto_insert.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <vector>

#include <fcntl.h>
#include <malloc.h>
#include <unistd.h>

// The ticker's way into a page of the size that the argument says, backup and syncing included,
// beside the bare system calls that bring the same bytes to the disk as safely.
namespace orvane {
namespace {

namespace fs = std::filesystem;

const FinishedPayload ticker = Finish(Generate({u"Welcome to my page!"}));

std::string MakePage(std::size_t size)
{
    std::string page = "<html>\r\n<head>\r\n<title>My page</title>\r\n</head>\r\n<body>\r\n";
    while (page.size() < size)
        page += "<p>One more line of the text that makes a page of its usual size.</p>\r\n";
    return page + "</body>\r\n</html>\r\n";
}

/// Nobody is asked and nothing fails while a page is written for the first time.
class NoDialogs : public Dialogs
{
public:
    void Say(TextView words, Tone) override { throw std::runtime_error(ToUtf8(words)); }
    bool Ask(TextView words, TextView) override { throw std::runtime_error(ToUtf8(words)); }
    std::optional<bool> AskOrCancel(TextView, TextView) override { return std::nullopt; }
    std::optional<Text> OpenFile(const FileRequest&) override { return std::nullopt; }
    std::vector<Text> OpenFiles(const FileRequest&) override { return {}; }
    std::optional<Text> SaveFile(const FileRequest&) override { return std::nullopt; }
    std::optional<Text> PickFolder(TextView, TextView) override { return std::nullopt; }
    std::optional<std::int32_t> PickColor() override { return std::nullopt; }
    FontChoice PickFont(const FontChoice& start) override { return start; }
    std::unique_ptr<Progress> FollowWork(TextView) override { return nullptr; }
    PageBoxReply Answer(const PageBox&) override { return {}; }
};

void Require(bool done)
{
    if (!done)
        throw std::runtime_error("a call of the disk failed");
}

/// Reads a whole file with bare calls.
std::string ReadBare(const std::string& path)
{
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    FileStatus status{};
    Require(file >= 0 && ::fstat(file, &status) == 0);
    std::string bytes(static_cast<std::size_t>(status.st_size), '\0');
    Require(::read(file, bytes.data(), bytes.size()) == status.st_size);
    Require(::close(file) == 0);
    return bytes;
}

/// Writes a file beside `path`, synced, renames it and syncs the folder, with bare calls.
void PutBare(const std::string& folder, const std::string& path, const std::string& bytes)
{
    const std::string temporary = folder + "/new";
    const int directory = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const int file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    Require(directory >= 0 && file >= 0);
    Require(::write(file, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size()));
    Require(::fsync(file) == 0 && ::close(file) == 0);
    Require(::rename(temporary.c_str(), path.c_str()) == 0);
    Require(::fsync(directory) == 0 && ::close(directory) == 0);
}

/// The author's folder on the real disk, with a page that was backed up on this day before.
class Site
{
public:
    explicit Site(std::size_t pageSize) : m_page(MakePage(pageSize))
    {
        fs::create_directory(m_folder / "state");
        Restore();
        Insert();
        Inserted = ReadBare(Page());
        Restore();
    }
    ~Site() { fs::remove_all(m_folder); }
    Site(const Site&) = delete;
    Site& operator=(const Site&) = delete;

    std::string Page() const { return (m_folder / "page.html").string(); }
    std::string Inserted; ///< what the page holds at the end

    void Insert()
    {
        if (AutoInsert(m_files, m_dialogs, FromUtf8(Page()), ticker, m_place) !=
            AutoInsertion::Inserted)
            throw std::runtime_error("the ticker did not get into the page");
    }

    void InsertBare() const
    {
        const std::string backup = (m_folder / "Backup of page.html").string();
        const std::string bytes = ReadBare(Page());
        PutBare(m_folder, backup, bytes);
        benchmark::DoNotOptimize(ReadBare(ToUtf8(BackupPathIn(m_place, FromUtf8(Page())))));
        PutBare(m_folder, Page(), Inserted);
    }

    /// The page as it was, on the disk.
    void Restore() const { PutBare(m_folder, Page(), m_page); }

private:
    static fs::path MakeFolder()
    {
        std::string name = (fs::temp_directory_path() / "orvane-bench-XXXXXX").string();
        Require(::mkdtemp(name.data()) != nullptr);
        return name;
    }

    const std::string m_page;
    const fs::path m_folder = MakeFolder();
    PosixCalls m_calls;
    NoDialogs m_dialogs;
    DiskFileStore m_files{m_calls, FromUtf8((m_folder / "state").string())};
    BackupsPlace m_place{FromUtf8((m_folder / "state/first-backups").string()), u"2024-05-31"};
};

/// What the system says of this program's memory under that name, in kB.
double MemoryOf(const std::string& name)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);)
        if (line.starts_with(name + ":"))
            return std::stod(line.substr(name.size() + 1));
    throw std::runtime_error("the system does not tell the memory");
}

/// The memory that an insertion takes at its peak beyond what the program had before, in kB.
double PeakOf(Site& site)
{
    ::malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << "5"; // the peak counts from here on
    const double before = MemoryOf("VmRSS");
    site.Insert();
    const double peak = MemoryOf("VmHWM") - before;
    site.Restore();
    return peak;
}

/// The microseconds that this work on the page takes; the page is as before afterwards.
template <class Work>
double Time(const Site& site, const Work& work)
{
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
    if (ReadBare(site.Page()) != site.Inserted)
        throw std::runtime_error("the page does not hold the ticker");
    site.Restore();
    return time.count();
}

double Median(std::vector<double> times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

/// Both by turns, since the disk is never as fast twice, and each first in every other round.
void InsertBesideBare(benchmark::State& state)
{
    Site site(static_cast<std::size_t>(state.range()));
    state.counters["PeakMemory"] = PeakOf(site);
    std::vector<double> ours, bare;
    for (auto _ : state) {
        const bool isOursFirst = ours.size() % 2 == 0;
        if (!isOursFirst)
            bare.push_back(Time(site, [&] { site.InsertBare(); }));
        ours.push_back(Time(site, [&] { site.Insert(); }));
        if (isOursFirst)
            bare.push_back(Time(site, [&] { site.InsertBare(); }));
    }
    state.counters["Ours"] = Median(ours);
    state.counters["Bare"] = Median(bare);
}
BENCHMARK(InsertBesideBare)->Arg(30'000)->Arg(10'000'000)->UseRealTime()->MinTime(4);

} // namespace
} // namespace orvane
