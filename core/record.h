#pragma once
// Everything the game knows: the shared record and the per-screen fields of the office
// and of the gig screen. Every rule reads and writes these fields directly.

#include <array>
#include <string>

#include "core/numeric.h"

namespace tourvane {

/// An array with indexes 0 to Upper, both included, as the game declares its arrays.
template <class T, int Upper>
using Arr = std::array<T, Upper + 1>;

inline constexpr int kMemberSlots = 4;
inline constexpr int kSongSlots = 20;
inline constexpr int kVenues = 5;
inline constexpr int kChartRows = 70;
inline constexpr int kFirstRivalRow = 20;
inline constexpr int kSaveSlots = 4;
inline constexpr const char* kVacant = "None";

/// 1 September 2001 as a day count from 30 December 1899.
inline constexpr Date kStartDate = 37135.0;

/// The shared record, fields in declared order. Each field also has its line in the table of
/// core/fields.h, which names it and places it in the save; the build stops without it.
struct Module1 {
    std::string bandname;
    Integer popularity = 0;
    Arr<std::string, 20> songname{};
    Arr<Integer, 20> songquality{};
    Long cash = 0;
    Arr<std::string, 3> slotname{};
    Arr<std::string, 30> malename{};
    Arr<std::string, 30> femalename{};
    Arr<std::string, 30> surname{};
    std::string playername;
    Arr<std::string, 4> membername{};
    Arr<Integer, 4> memberage{};
    Arr<std::string, 4> membersex{};
    Arr<Integer, 4> memberhappy{};
    Arr<Integer, 4> memberill{};
    Arr<Integer, 4> memberfriction{};
    Arr<Integer, 4> membertalent{};
    Arr<Integer, 4> membercharisma{};
    Arr<Integer, 4> memberattitude{};
    Arr<Integer, 4> memberlooks{};
    Arr<Integer, 4> membercreativity{};
    Arr<std::string, 4> instrument{};
    Integer vacancy = 0;
    Arr<Integer, 4> listslot{};
    Integer tiredness = 0;
    Integer nextsong = 0;
    Integer songcount = 0;
    Arr<Integer, 4> practice{};
    Arr<std::string, 20> titlefirst{};
    Arr<std::string, 20> titlesecond{};
    Arr<Integer, 6> setlist{};
    Arr<std::string, 5> venuename{};
    Arr<Integer, 5> venuefame{};
    Integer spareword = 0;
    Arr<Integer, 5> ticketprice{};
    Arr<Boolean, 5> venueopen{};
    Integer songweeks = 0;
    Integer interviewkind = 0;
    Integer bestsong = 0;
    Date gamedate = 0.0;
    Integer promotion = 0;
    Integer attendance = 0;
    std::string newstext;
    std::string messagetext;
    std::string messagefrom;
    Integer hirecost = 0;
    Integer gigprofit = 0;
    Boolean signed_ = 0;  // `signed` is a C++ keyword; the field is named "signed" everywhere else
    Arr<Boolean, 20> released{};
    Arr<Integer, 20> singlehype{};
    Arr<Integer, 20> singledemand{};
    Arr<Long, 20> singlesales{};
    Arr<std::string, 70> chartband{};
    Arr<std::string, 70> charttitle{};
    Arr<Long, 70> chartsales{};
    Arr<Long, 70> chartlastsales{};
    Arr<Integer, 70> chartplace{};
    Arr<Integer, 70> chartfame{};
    Arr<Integer, 70> chartquality{};
    Arr<Integer, 70> chartdemand{};
    Arr<Integer, 70> chartlife{};
    Arr<std::string, 60> rivalname{};
    Arr<Integer, 60> rivalfame{};

    bool operator==(const Module1&) const = default;
};

/// Fields of the office screen `main`. None is saved.
struct MainFields {
    std::string applicantname;
    Integer applicanttalent = 0;
    Integer applicantcharisma = 0;
    Integer applicantattitude = 0;
    Integer applicantlooks = 0;
    Integer applicantcreativity = 0;
    std::string applicantsex;
    Integer selectedmember = 0;
    Integer applicantage = 0;
    Boolean demosent = 0;
    Integer applicantsseen = 0;
    Long weeksales = 0;
    Long rivalsales = 0;
    Long royalty = 0;
    Integer selectedsong = 0;
};

/// Fields of the gig screen. They outlive the screen itself.
struct GigFields {
    Integer gigvenue = 0;
    Integer tracksadded = 0;
    Integer gigscore = 0;
};

/// True when `i` indexes an element of the array (saved games and scripts can hold any value
/// in a field that the rules use as an index).
template <class T, std::size_t N>
constexpr bool in_bounds(const std::array<T, N>&, long long i) {
    return i >= 0 && i < static_cast<long long>(N);
}

/// True when `slot` is one of the member slots 1 to 4.
constexpr bool is_member_slot(long long slot) {
    return slot >= 1 && slot <= kMemberSlots;
}

/// True when member slot `slot` holds nobody.
inline bool is_vacant(const Module1& r, int slot) {
    return r.membername[slot] == kVacant;
}

/// True when none of the slots 1 to 4 is vacant.
inline bool band_is_full(const Module1& r) {
    for (int i = 1; i <= kMemberSlots; ++i)
        if (is_vacant(r, i)) return false;
    return true;
}

}  // namespace tourvane
