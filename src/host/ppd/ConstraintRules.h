#pragma once

#include "host/ppd/PPDFile.h"

#include <QByteArray>

#include <set>
#include <vector>

namespace kesta::host {

// An option at a choice; an empty choice stands for any that switches the option on.
struct ConstraintTerm {
    const ppd_option_t* option;
    QByteArray choice;
};

// All terms at once are forbidden.
using ConstraintRule = std::vector<ConstraintTerm>;

// Whether that choice switches its option off.
bool IsOffChoice(const char* choice);

// What a PPD forbids: UIConstraints, NonUIConstraints and cupsUIConstraints, also those about fitted accessories. Rules
// about accessories alone are left out: they are the administrator's affair, and no choice of a job settles them.
class ConstraintRules {
public:
    explicit ConstraintRules(ppd_file_t* ppd);

    ppd_file_t* ppd() const { return ppd_; }
    bool isInstallable(const ppd_option_t& option) const { return installable_.contains(&option); }
    bool isBroken(const ConstraintRule& rule) const;
    // Whether any rule about this option is broken.
    bool breaksAny(const ppd_option_t& option) const;
    // The broken rules in the PPD's order; one of those that name the same options.
    std::vector<ConstraintRule> broken() const;

private:
    void addInstallable(const ppd_group_t& group);
    void add(const std::vector<std::pair<QByteArray, QByteArray>>& pairs);
    void addPair(const ppd_const_t& pair);
    void addCups(const char* value);

    ppd_file_t* ppd_;
    std::set<const ppd_option_t*> installable_;
    std::vector<ConstraintRule> rules_;
};

} // namespace kesta::host
