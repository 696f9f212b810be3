#pragma once

#include "model/ImageShift.h"
#include "model/Stock.h"

#include <memory>

namespace kesta {

// A page of the job that is not like the others: where it is and its paper. In a ticket what is not set means that the
// job's setting applies.
class SpecialPage {
public:
    virtual ~SpecialPage() = default;

    virtual Dictionary asTicket() const;
    virtual std::unique_ptr<SpecialPage> clone() const = 0;

    SInt32 startPage() const { return startPage_; }
    void setStartPage(SInt32 page) { startPage_ = page; }
    Stock& stock() { return stock_; }
    const Stock& stock() const { return stock_; }

protected:
    SpecialPage() = default;
    explicit SpecialPage(const Dictionary& ticket); // a missing stock has every field unset, a missing page is 0
    SpecialPage(const SpecialPage&) = default;
    SpecialPage& operator=(const SpecialPage&) = default;

private:
    SInt32 startPage_ = 0;
    Stock stock_;
};

// The front or back cover.
class Cover : public SpecialPage {
public:
    Cover() = default;
    explicit Cover(const Dictionary& ticket);

    Dictionary asTicket() const override;
    std::unique_ptr<SpecialPage> clone() const override;

    SInt32 sidesImaged() const { return sidesImaged_; }
    void setSidesImaged(SInt32 sides) { sidesImaged_ = sides; } // 1 none, 2 front, 3 back, 4 both

    bool operator==(const Cover& other) const; // sides and stock, not the page

private:
    SInt32 sidesImaged_ = 1;
};

// Sheets put in behind a page; those of page 0 come before page 1.
class Insert : public SpecialPage {
public:
    Insert() = default;
    explicit Insert(const Dictionary& ticket);

    Dictionary asTicket() const override;
    std::unique_ptr<SpecialPage> clone() const override;

    SInt32 quantity() const { return quantity_; }
    void setQuantity(SInt32 sheets) { quantity_ = sheets; }

private:
    SInt32 quantity_ = 1;
};

struct ExceptionPageFields {
    SInt32 endPage = 0;
    SInt32 plex = kUnset;
    SInt32 halftoneScreen = kUnset;
    SInt32 lightenDarken = kUnset;
};

// Pages with settings of their own: those from startPage to endPage.
class ExceptionPage : public SpecialPage {
public:
    ExceptionPage() = default;
    explicit ExceptionPage(const Dictionary& ticket);

    Dictionary asTicket() const override;
    std::unique_ptr<SpecialPage> clone() const override;

    SInt32 endPage() const { return fields_.endPage; }
    SInt32 plex() const { return fields_.plex; }
    SInt32 halftoneScreen() const { return fields_.halftoneScreen; }
    SInt32 lightenDarken() const { return fields_.lightenDarken; }
    _IS_Options& imageShift() { return imageShift_; }
    const _IS_Options& imageShift() const { return imageShift_; }

    void setEndPage(SInt32 page) { fields_.endPage = page; }
    void setPlex(SInt32 plex) { fields_.plex = plex; }
    void setHalftoneScreen(SInt32 screen) { fields_.halftoneScreen = screen; } // does not come back from a ticket
    void setLightenDarken(SInt32 amount) { fields_.lightenDarken = amount; }

private:
    ExceptionPageFields fields_;
    _IS_Options imageShift_;
};

} // namespace kesta
