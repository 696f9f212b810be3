#include "platform/printsystem/PPDFileCheck.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <zlib.h>

#include <algorithm>
#include <array>
#include <map>
#include <memory>
#include <string_view>

namespace kesta {
namespace {

// Far above real descriptions; at these limits the library needs less than half a second.
constexpr qsizetype kMaximumMegabytes = 4;
constexpr qsizetype kMaximumSize = kMaximumMegabytes * 1024 * 1024;
constexpr int kMaximumLines = 100'000;
constexpr int kMaximumOfOneKeyword = 2000;

struct CloseGzip {
    void operator()(gzFile file) const { gzclose(file); }
};

// The unpacked bytes, at most one more than the limit; nothing when they can't be read.
std::optional<QByteArray> ReadUnpacked(const QString& path)
{
    const std::unique_ptr<gzFile_s, CloseGzip> file(gzopen(QFile::encodeName(path).constData(), "rb"));
    if (!file)
        return std::nullopt;
    QByteArray content(kMaximumSize + 1, Qt::Uninitialized);
    const int size = gzread(file.get(), content.data(), static_cast<unsigned>(content.size()));
    if (size < 0)
        return std::nullopt;
    content.truncate(size);
    return content;
}

// "OpenUI" of "*OpenUI *Jog/Offset: PickOne"; empty for a comment, for code and for what is counted elsewhere.
std::string_view MainKeyword(std::string_view line)
{
    if (!line.starts_with('*') || line.starts_with("*%") || line.starts_with("*End"))
        return {};
    line.remove_prefix(1);
    const std::string_view keyword = line.substr(0, line.find_first_of(" \t:/"));
    // Constraints come in thousands and cost the library no more than any line.
    return keyword == "UIConstraints" || keyword == "NonUIConstraints" ? std::string_view() : keyword;
}

// Takes the lines off a text one by one; they may end in either way.
class Lines {
public:
    explicit Lines(std::string_view text) : text_(text), newline_(text.find('\n')), carriageReturn_(text.find('\r')) {}

    bool atEnd() const { return start_ >= text_.size(); }
    std::string_view next()
    {
        const std::size_t end = std::min({newline_, carriageReturn_, text_.size()});
        const std::string_view line = text_.substr(start_, end - start_);
        start_ = end + 1;
        if (newline_ < start_)
            newline_ = text_.find('\n', start_);
        if (carriageReturn_ < start_)
            carriageReturn_ = text_.find('\r', start_);
        return line;
    }

private:
    std::string_view text_;
    std::size_t start_ = 0;
    std::size_t newline_, carriageReturn_; // the next ones, each looked for once: few files have both
};

// Whether the last of the things that are opened is not closed: the file was not written or fetched whole.
class OpenThings {
public:
    void see(std::string_view keyword)
    {
        for (std::size_t i = 0; i < kPairs.size(); ++i) {
            if (keyword == kPairs[i].opening || keyword == kPairs[i].closing)
                isOpen_[i] = keyword == kPairs[i].opening;
        }
    }
    bool any() const { return std::ranges::find(isOpen_, true) != isOpen_.end(); }

private:
    struct Pair {
        std::string_view opening, closing;
    };
    static constexpr std::array<Pair, 3> kPairs{
        {{"OpenUI", "CloseUI"}, {"JCLOpenUI", "JCLCloseUI"}, {"OpenGroup", "CloseGroup"}}};
    std::array<bool, kPairs.size()> isOpen_{};
};

std::optional<Message> LineProblem(std::string_view content)
{
    std::map<std::string_view, int> count; // no hashes: whoever wrote the file might have chosen keywords of one hash
    OpenThings things;
    int number = 0;
    for (Lines lines(content); !lines.atEnd();) {
        const std::string_view line = lines.next();
        const std::string_view keyword = MainKeyword(line);
        if (++number > kMaximumLines)
            return Say("PPD Many Lines", kMaximumLines);
        if (keyword.empty())
            continue;
        if (++count[keyword] > kMaximumOfOneKeyword)
            return Say("PPD Many Lines Of", kMaximumOfOneKeyword,
                       QString::fromLatin1(keyword.data(), qMin<qsizetype>(keyword.size(), 40)));
        // The library passes over it in silence, and what the key is to keep secret would travel openly.
        if (keyword == "KSTicketKey" && line.find(':') == line.npos)
            return Say("PPD Key Without Value");
        things.see(keyword);
    }
    return things.any() ? std::optional(Say("PPD Breaks Off")) : std::nullopt;
}

std::optional<Message> ContentProblem(const QByteArray& content)
{
    if (content.size() > kMaximumSize)
        return Say("PPD Large", kMaximumMegabytes);
    if (!content.startsWith("*PPD-Adobe:"))
        return Say("PPD Of Another Kind");
    if (content.contains('\0'))
        return Say("PPD Not Text");
    return LineProblem({content.constData(), static_cast<std::size_t>(content.size())});
}

} // namespace

std::optional<Message> PPDFileProblem(const QString& path)
{
    const auto sentence = [&](const Message& reason) { return Say("PPD Unusable", path, reason); };
    if (!QFileInfo::exists(path))
        return sentence(Say("No Such File"));
    if (!QFileInfo(path).isFile()) // reading a pipe or a device might never end
        return sentence(Say("Not A File"));
    const std::optional<QByteArray> content = ReadUnpacked(path);
    if (!content)
        return sentence(Say("File Unreadable"));
    const std::optional<Message> problem = ContentProblem(*content);
    return problem ? std::optional(sentence(*problem)) : std::nullopt;
}

} // namespace kesta
