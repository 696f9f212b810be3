#include "platform/system/FileChooser.h"

#include "platform/system/Installed.h"

namespace kesta {
namespace {

class NoFileChooser : public FileChooser {
public:
    std::optional<QString> open(const FileQuestion&) override { return std::nullopt; }
    std::optional<QString> save(const FileQuestion&) override { return std::nullopt; }
};

} // namespace

FileChooser* FileChooser::install(FileChooser* chooser)
{
    return InstalledOr<FileChooser, NoFileChooser>().install(chooser);
}

FileChooser& GetFileChooser()
{
    return InstalledOr<FileChooser, NoFileChooser>().current();
}

} // namespace kesta
