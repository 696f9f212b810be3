#include "host/ppd/PPDFile.h"

namespace kesta::host {
namespace {

std::vector<ppd_choice_t*> MarkedChoices(const ppd_file_t& ppd)
{
    std::vector<ppd_choice_t*> marked;
    for (int i = 0; i < cupsArrayCount(ppd.marked); ++i)
        marked.push_back(static_cast<ppd_choice_t*>(cupsArrayIndex(ppd.marked, i)));
    return marked;
}

} // namespace

void PPDMarksBack::operator()(ppd_file_t* ppd) const
{
    for (ppd_choice_t* choice : MarkedChoices(*ppd))
        choice->marked = 0;
    cupsArrayClear(ppd->marked);
    for (ppd_choice_t* choice : marked) {
        choice->marked = 1;
        cupsArrayAdd(ppd->marked, choice);
    }
}

PPDFile OpenPPDFile(const QString& path)
{
    const OpenPPD opened = SharedPPDFile(path);
    PPDFile file{.ppd = {}, .problem = opened.problem};
    if (opened.ppd) {
        file.ppd = {opened.ppd.get(), PPDMarksBack{.shared = opened.ppd, .marked = MarkedChoices(*opened.ppd)}};
        ppdMarkDefaults(opened.ppd.get());
    }
    return file;
}

} // namespace kesta::host
