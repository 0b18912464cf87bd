#pragma once
// Pinned draws for the band's rules: applicants, and a spare value that shows whether a case
// took exactly the draws it was given.

#include <initializer_list>
#include <string>
#include <string_view>
#include <utility>

#include "test_game.h"

namespace tourvane::testing {

/// One applicant as the nine draws of `newapplicant` make them.
struct Applicant {
    int age = 17, sex = 1, forename = 1, surname = 1;
    int talent = 1, charisma = 1, attitude = 1, looks = 1, creativity = 1;
};

/// An applicant as "name|sex|age|talent charisma attitude looks creativity".
inline std::string shown(const MainFields& a) {
    return a.applicantname + "|" + a.applicantsex + "|" + std::to_string(a.applicantage) + "|" +
           std::to_string(a.applicanttalent) + " " + std::to_string(a.applicantcharisma) + " " +
           std::to_string(a.applicantattitude) + " " + std::to_string(a.applicantlooks) + " " +
           std::to_string(a.applicantcreativity);
}

/// A member slot in the same form, with "|happy friction" behind.
inline std::string slot_of(const Module1& r, int s) {
    return r.membername[s] + "|" + r.membersex[s] + "|" + std::to_string(r.memberage[s]) + "|" +
           std::to_string(r.membertalent[s]) + " " + std::to_string(r.membercharisma[s]) + " " +
           std::to_string(r.memberattitude[s]) + " " + std::to_string(r.memberlooks[s]) + " " +
           std::to_string(r.membercreativity[s]) + "|" + std::to_string(r.memberhappy[s]) + " " +
           std::to_string(r.memberfriction[s]);
}

/// Sets `memberhappy` of slots 1 to 4.
inline void set_happy(Module1& r, std::initializer_list<int> values) {
    int s = 1;
    for (int v : values) r.memberhappy[s++] = static_cast<Integer>(v);
}

/// `memberhappy` of slots 1 to 4, as "a b c d".
inline std::string happiness(const Module1& r) {
    std::string out;
    for (int s = 1; s <= 4; ++s) out += (s > 1 ? " " : "") + std::to_string(r.memberhappy[s]);
    return out;
}

using Lines = std::vector<std::string>;

/// Queues the draws of one applicant, in the order the game takes them.
inline void queue_applicant(TestGame& t, const Applicant& a) {
    t.pick(a.age - 16, 6);
    t.pick(a.sex, 2);
    t.pick(a.forename, 30);
    t.pick(a.surname, 30);
    t.pick(a.talent, 5);
    t.pick(a.charisma, 10);
    t.pick(a.attitude, 10);
    t.pick(a.looks, 10);
    t.pick(a.creativity, 3);
}

/// Queues draws giving Int(Rnd()*n)+1 = k for each {k, n}.
inline void picks(TestGame& t, std::initializer_list<std::pair<int, int>> draws) {
    for (auto [k, n] : draws) t.pick(k, n);
}

/// Queues `n` applicants of no interest.
inline void any_applicants(TestGame& t, int n = 1) {
    for (int i = 0; i < n; ++i) queue_applicant(t, {});
}

/// Queues a value behind the pinned ones; `only_spare_left` then tells that every pinned
/// draw was taken and not one more.
inline constexpr double kSpare = 0.123456;
inline void spare(TestGame& t) {
    t.g.rnd.queue(kSpare);
}
inline bool only_spare_left(TestGame& t) {
    return t.g.rnd.queued_left() == 1;
}

/// The transcript line of a Yes/No box.
inline std::string yesno(std::string_view text, bool yes) {
    return "msgbox yesno " + json_quote(text) + (yes ? " -> yes" : " -> no");
}

}  // namespace tourvane::testing
