#include "platform/printsystem/PPDFileCheck.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <zlib.h>

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

std::optional<Message> LineProblem(std::string_view content)
{
    std::map<std::string_view, int> count;
    int lines = 0;
    while (!content.empty()) {
        const std::size_t end = content.find_first_of("\r\n");
        const std::string_view line = content.substr(0, end);
        const std::string_view keyword = MainKeyword(line);
        // The library passes over it in silence, and what the key is to keep secret would travel openly.
        if (keyword == "KSTicketKey" && line.find(':') == line.npos)
            return Say("PPD Key Without Value");
        content.remove_prefix(end == std::string_view::npos ? content.size() : end + 1);
        if (++lines > kMaximumLines)
            return Say("PPD Many Lines", kMaximumLines);
        if (!keyword.empty() && ++count[keyword] > kMaximumOfOneKeyword)
            return Say("PPD Many Lines Of", kMaximumOfOneKeyword,
                       QString::fromLatin1(keyword.data(), qMin<qsizetype>(keyword.size(), 40)));
    }
    return std::nullopt;
}

// Whether the last of the things that are opened is not closed: the file was not written or fetched whole.
bool BreaksOff(const QByteArray& content)
{
    const auto isOpen = [&content](const char* opening, const char* closing) {
        return content.lastIndexOf(opening) > content.lastIndexOf(closing);
    };
    return isOpen("\n*OpenUI", "\n*CloseUI") || isOpen("\n*JCLOpenUI", "\n*JCLCloseUI") ||
           isOpen("\n*OpenGroup", "\n*CloseGroup");
}

std::optional<Message> ContentProblem(const QByteArray& content)
{
    if (content.size() > kMaximumSize)
        return Say("PPD Large", kMaximumMegabytes);
    if (!content.startsWith("*PPD-Adobe:"))
        return Say("PPD Of Another Kind");
    if (content.contains('\0'))
        return Say("PPD Not Text");
    if (std::optional<Message> problem = LineProblem({content.constData(), static_cast<std::size_t>(content.size())}))
        return problem;
    return BreaksOff(content) ? std::optional(Say("PPD Breaks Off")) : std::nullopt;
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
