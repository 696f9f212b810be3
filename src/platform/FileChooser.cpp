#include "platform/FileChooser.h"

#include "platform/Installed.h"

namespace kesta {
namespace {

class NoFileChooser : public FileChooser {
public:
    std::optional<QString> open(const FileQuestion&) override { return std::nullopt; }
    std::optional<QString> save(const FileQuestion&) override { return std::nullopt; }
};

Installed<FileChooser>& TheChooser()
{
    static NoFileChooser none;
    static Installed<FileChooser> installed(none);
    return installed;
}

} // namespace

FileChooser* FileChooser::install(FileChooser* chooser)
{
    return TheChooser().install(chooser);
}

FileChooser& GetFileChooser()
{
    return TheChooser().current();
}

} // namespace kesta
