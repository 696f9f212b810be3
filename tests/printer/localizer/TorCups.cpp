#include <cups/ppd.h>

#include <cstring>

// The localisation bundle's function, as the plug-in calls it with the PPD that it has just opened.
extern "C" __attribute__((visibility("default"))) void InvokeLocalizedPPD(ppd_file_t* ppd)
{
    if (ppd_option_t* option = ppdFindOption(ppd, "Jog"))
        std::strcpy(ppdFindChoice(option, "EndOfSet")->text, "Localized");
}
