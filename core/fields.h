#pragma once
// Every field of the game state, each described once: its name, its type, its bounds (taken
// from its declaration) and where a save file keeps it. The record comes first, then the
// office's fields, then the gig screen's, each in declared order. The script driver's get,
// set and dump, the soak, the tests that read fields by name and the save file's layout all
// come from this one table.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "core/game.h"

namespace tourvane {

enum class FieldType { String, Integer, Long, Boolean, Date };

/// The runs of records in a save file. A run over slots holds, slot after slot, one record of
/// each of its fields in turn; a run of plain fields holds each of them once.
enum class SaveRun : std::uint8_t {
    None,       ///< not in a save
    Head,       ///< the band, the boss, popularity and the contract
    Members,    ///< member slots 1 to 4
    Songs,      ///< song slots 1 to 20
    Scalars,    ///< the plain fields behind the songs
    Reserved,   ///< one record of 00 00, read and ignored, that holds no field
    Chart,      ///< chart rows 1 to 70
    RivalLife,  ///< the rival rows 20 to 70, once more
    Venues,     ///< venue slots 1 to 5
};

struct SaveRunSpan {
    SaveRun run;
    int first = -1;  ///< the first slot the run walks; -1 for a run of plain fields
    int last = -1;
};

/// The runs of a save file in the order the file holds them.
inline constexpr std::array kSaveRuns{
    SaveRunSpan{SaveRun::Head},
    SaveRunSpan{SaveRun::Members, 1, kMemberSlots},
    SaveRunSpan{SaveRun::Songs, 1, kSongSlots},
    SaveRunSpan{SaveRun::Scalars},
    SaveRunSpan{SaveRun::Reserved},
    SaveRunSpan{SaveRun::Chart, 1, kChartRows},
    SaveRunSpan{SaveRun::RivalLife, kFirstRivalRow, kChartRows},
    SaveRunSpan{SaveRun::Venues, 1, kVenues},
};

/// Where a save keeps a field: its run, and its turn among the fields of the run, from 1.
struct SavePlace {
    SaveRun run = SaveRun::None;
    int turn = 0;
};

/// A field's declaration: the type of its elements, and the last index of an array or -1 for
/// a plain field.
template <class M>
struct FieldShape {
    using Element = M;
    static constexpr bool array = false;
    static constexpr int upper = -1;
};
template <class T, std::size_t N>
struct FieldShape<std::array<T, N>> {
    using Element = T;
    static constexpr bool array = true;
    static constexpr int upper = static_cast<int>(N) - 1;
};

/// One line of the table: a field's name, the member of Module1, MainFields or GigFields that
/// holds it, its type, where a save keeps it, and where a second run keeps more of its slots.
template <class Owner, class Member>
struct FieldDef {
    using OwnerType = Owner;
    using Shape = FieldShape<Member>;
    const char* name;
    Member Owner::*member;
    FieldType type;
    SavePlace saved;
    SavePlace again;
};

namespace field_table {

/// Whether elements of type E hold a field of type `t`.
template <class E>
constexpr bool holds(FieldType t) {
    switch (t) {
        case FieldType::String:
            return std::is_same_v<E, std::string>;
        case FieldType::Integer:
        case FieldType::Boolean:
            return std::is_same_v<E, Integer>;
        case FieldType::Long:
            return std::is_same_v<E, Long>;
        case FieldType::Date:
            return std::is_same_v<E, Date>;
    }
    return false;
}

/// Never defined: a table line that calls it doesn't build.
void type_differs_from_the_declaration();

template <class Owner, class Member>
consteval FieldDef<Owner, Member> def(const char* name, Member Owner::*member, FieldType type,
                                      SavePlace saved = {}, SavePlace again = {}) {
    if (!holds<typename FieldShape<Member>::Element>(type)) type_differs_from_the_declaration();
    return {name, member, type, saved, again};
}

consteval auto make() {
    using enum FieldType;
    using enum SaveRun;
    using M = Module1;
    using O = MainFields;
    using G = GigFields;
    return std::tuple{
        def("bandname", &M::bandname, String, {Head, 1}),
        def("popularity", &M::popularity, Integer, {Head, 3}),
        def("songname", &M::songname, String, {Songs, 1}),
        def("songquality", &M::songquality, Integer, {Songs, 2}),
        def("cash", &M::cash, Long, {Scalars, 1}),
        def("slotname", &M::slotname, String),
        def("malename", &M::malename, String),
        def("femalename", &M::femalename, String),
        def("surname", &M::surname, String),
        def("playername", &M::playername, String, {Head, 2}),
        def("membername", &M::membername, String, {Members, 1}),
        def("memberage", &M::memberage, Integer, {Members, 2}),
        def("membersex", &M::membersex, String, {Members, 3}),
        def("memberhappy", &M::memberhappy, Integer, {Members, 4}),
        def("memberill", &M::memberill, Integer, {Members, 5}),
        def("memberfriction", &M::memberfriction, Integer, {Members, 6}),
        def("membertalent", &M::membertalent, Integer, {Members, 7}),
        def("membercharisma", &M::membercharisma, Integer, {Members, 8}),
        def("memberattitude", &M::memberattitude, Integer, {Members, 9}),
        def("memberlooks", &M::memberlooks, Integer, {Members, 10}),
        def("membercreativity", &M::membercreativity, Integer, {Members, 11}),
        def("instrument", &M::instrument, String),
        def("vacancy", &M::vacancy, Integer, {Scalars, 2}),
        def("listslot", &M::listslot, Integer, {Members, 12}),
        def("tiredness", &M::tiredness, Integer, {Scalars, 3}),
        def("nextsong", &M::nextsong, Integer, {Scalars, 4}),
        def("songcount", &M::songcount, Integer, {Scalars, 5}),
        def("practice", &M::practice, Integer),
        def("titlefirst", &M::titlefirst, String),
        def("titlesecond", &M::titlesecond, String),
        def("setlist", &M::setlist, Integer),
        def("venuename", &M::venuename, String),
        def("venuefame", &M::venuefame, Integer),
        def("spareword", &M::spareword, Integer, {Scalars, 6}),
        def("ticketprice", &M::ticketprice, Integer),
        def("venueopen", &M::venueopen, Boolean, {Venues, 1}),
        def("songweeks", &M::songweeks, Integer, {Scalars, 7}),
        def("interviewkind", &M::interviewkind, Integer, {Scalars, 8}),
        def("bestsong", &M::bestsong, Integer),
        def("gamedate", &M::gamedate, Date, {Scalars, 9}),
        def("promotion", &M::promotion, Integer, {Scalars, 10}),
        def("attendance", &M::attendance, Integer),
        def("newstext", &M::newstext, String),
        def("messagetext", &M::messagetext, String),
        def("messagefrom", &M::messagefrom, String),
        def("hirecost", &M::hirecost, Integer),
        def("gigprofit", &M::gigprofit, Integer),
        def("signed", &M::signed_, Boolean, {Head, 4}),
        def("released", &M::released, Boolean, {Songs, 3}),
        def("singlehype", &M::singlehype, Integer),
        def("singledemand", &M::singledemand, Integer),
        def("singlesales", &M::singlesales, Long),
        def("chartband", &M::chartband, String, {Chart, 1}),
        def("charttitle", &M::charttitle, String, {Chart, 2}),
        def("chartsales", &M::chartsales, Long, {Chart, 3}),
        def("chartlastsales", &M::chartlastsales, Long, {Chart, 4}),
        def("chartplace", &M::chartplace, Integer, {Chart, 5}),
        def("chartfame", &M::chartfame, Integer, {Chart, 6}),
        def("chartquality", &M::chartquality, Integer, {Chart, 7}),
        def("chartdemand", &M::chartdemand, Integer, {Chart, 8}),
        // Slots 1 to 20 among the songs, then the rival rows 20 to 70 behind the chart: row 20
        // stands in both, and the second is the one a load keeps.
        def("chartlife", &M::chartlife, Integer, {Songs, 4}, {RivalLife, 1}),
        def("rivalname", &M::rivalname, String),
        def("rivalfame", &M::rivalfame, Integer),
        // the office
        def("applicantname", &O::applicantname, String),
        def("applicanttalent", &O::applicanttalent, Integer),
        def("applicantcharisma", &O::applicantcharisma, Integer),
        def("applicantattitude", &O::applicantattitude, Integer),
        def("applicantlooks", &O::applicantlooks, Integer),
        def("applicantcreativity", &O::applicantcreativity, Integer),
        def("applicantsex", &O::applicantsex, String),
        def("selectedmember", &O::selectedmember, Integer),
        def("applicantage", &O::applicantage, Integer),
        def("demosent", &O::demosent, Boolean),
        def("applicantsseen", &O::applicantsseen, Integer),
        def("weeksales", &O::weeksales, Long),
        def("rivalsales", &O::rivalsales, Long),
        def("royalty", &O::royalty, Long),
        def("selectedsong", &O::selectedsong, Integer),
        // the gig screen
        def("gigvenue", &G::gigvenue, Integer),
        def("tracksadded", &G::tracksadded, Integer),
        def("gigscore", &G::gigscore, Integer),
    };
}

}  // namespace field_table

/// The table: every field of the game, once.
inline constexpr auto kFields = field_table::make();
inline constexpr std::size_t kFieldCount = std::tuple_size_v<decltype(kFields)>;

/// What the table says of a field, without its member: the same for every field.
struct FieldFacts {
    const char* name;
    FieldType type;
    int upper;  ///< the last index of an array, -1 for a plain field
    SavePlace saved;
    SavePlace again;
};

/// The facts of every field, in table order.
inline constexpr std::array<FieldFacts, kFieldCount> kFieldFacts = std::apply(
    [](const auto&... d) {
        return std::array{FieldFacts{d.name, d.type, std::remove_cvref_t<decltype(d)>::Shape::upper,
                                     d.saved, d.again}...};
    },
    kFields);

/// The table lines of the fields that save run `run` holds, in their turn.
template <SaveRun run>
inline constexpr auto kRunLines = [] {
    constexpr std::size_t count = [] {
        std::size_t n = 0;
        for (const FieldFacts& f : kFieldFacts) n += (f.saved.run == run) + (f.again.run == run);
        return n;
    }();
    std::array<std::size_t, count> lines{};
    for (std::size_t i = 0; i < kFieldCount; ++i)
        for (const SavePlace& p : {kFieldFacts[i].saved, kFieldFacts[i].again})
            if (p.run == run) lines[p.turn - 1] = i;
    return lines;
}();

/// How many records the runs of a save hold.
consteval std::size_t save_records() {
    std::size_t records = 0;
    for (const SaveRunSpan& span : kSaveRuns) {
        std::size_t fields = 0;
        for (const FieldFacts& f : kFieldFacts)
            fields += (f.saved.run == span.run) + (f.again.run == span.run);
        records += span.run == SaveRun::Reserved ? 1 : fields * (span.last - span.first + 1);
    }
    return records;
}

namespace field_table {

// What the table must say, checked as it builds: a field of Module1, MainFields or GigFields
// left out of it, listed twice or under another's name, or placed in a save where no record
// can hold it, stops the build.

/// Stands for any value: an aggregate takes as many as it has members.
struct AnyValue {
    template <class T>
    operator T() const;
};

template <class T, std::size_t... I>
constexpr bool takes_values(std::index_sequence<I...>) {
    return requires {
        T{(void(I), AnyValue{})...};
    };
}

/// How many members the aggregate T declares.
template <class T, std::size_t N = 0>
constexpr std::size_t member_count() {
    if constexpr (takes_values<T>(std::make_index_sequence<N + 1>()))
        return member_count<T, N + 1>();
    else
        return N;
}

template <class D>
using OwnerOf = typename std::remove_cvref_t<D>::OwnerType;

/// How many lines of the table hold a member of Owner.
template <class Owner>
consteval std::size_t lines_of() {
    return std::apply(
        [](const auto&... d) {
            return (std::size_t{0} + ... + std::is_same_v<OwnerOf<decltype(d)>, Owner>);
        },
        kFields);
}

template <class A, class B>
constexpr bool same_member(const A& a, const B& b) {
    if constexpr (std::is_same_v<A, B>)
        return a.member == b.member;
    else
        return false;
}

/// True when no member stands on two lines of the table.
consteval bool each_member_once() {
    return std::apply(
        [](const auto&... a) {
            std::size_t pairs = 0;
            const auto count = [&](const auto& x) { ((pairs += same_member(x, a)), ...); };
            (count(a), ...);
            return pairs == sizeof...(a);
        },
        kFields);
}

consteval bool names_differ() {
    for (std::size_t i = 0; i < kFieldCount; ++i)
        for (std::size_t j = 0; j < i; ++j)
            if (std::string_view(kFieldFacts[i].name) == kFieldFacts[j].name) return false;
    return true;
}

/// True when the fields of each run of a save take the turns 1, 2, 3 ... each once, every
/// field saved in a run of slots has those slots, and a run of plain fields holds plain fields.
consteval bool save_places_fit() {
    for (const SaveRunSpan& span : kSaveRuns) {
        std::size_t in_run = 0, turns = 0;
        for (const FieldFacts& f : kFieldFacts)
            for (const SavePlace& p : {f.saved, f.again}) {
                if (p.run != span.run) continue;
                ++in_run;
                turns |= std::size_t{1} << p.turn;
                if (span.first < 0 ? f.upper >= 0 : f.upper < span.last) return false;
            }
        if (span.run == SaveRun::Reserved && in_run) return false;
        if (turns != ((std::size_t{1} << (in_run + 1)) - 2)) return false;
    }
    for (const FieldFacts& f : kFieldFacts)
        for (const SavePlace& p : {f.saved, f.again})
            if ((p.run == SaveRun::None) != (p.turn == 0)) return false;
    return true;
}

/// True when only the record's own fields are saved: the screens' are not.
consteval bool only_the_record_is_saved() {
    return std::apply(
        [](const auto&... d) {
            return (... && (std::is_same_v<OwnerOf<decltype(d)>, Module1> ||
                            (d.saved.run == SaveRun::None && d.again.run == SaveRun::None)));
        },
        kFields);
}

static_assert(member_count<Module1>() == lines_of<Module1>(), "a field of Module1 is missing");
static_assert(member_count<MainFields>() == lines_of<MainFields>(), "an office field is missing");
static_assert(member_count<GigFields>() == lines_of<GigFields>(), "a gig field is missing");
static_assert(each_member_once(), "a field stands twice in the table");
static_assert(names_differ(), "two fields have one name");
static_assert(save_places_fit(), "a field's place in the save does not fit its run");
static_assert(only_the_record_is_saved(), "a screen's field is placed in the save");

}  // namespace field_table

/// A field of a running game, reached through its table line.
struct Field {
    const char* name;
    FieldType type;
    void* data;  ///< the field itself, or element 0 of an array
    int upper;   ///< the last index of an array, -1 for a plain field

    bool is_array() const { return upper >= 0; }
    template <class T>
    T& at(int index) const {
        return static_cast<T*>(data)[index < 0 ? 0 : index];
    }
};

/// All fields of `g`, in table order.
std::vector<Field> fields(Game& g);

/// The field of that name, or nullptr.
const Field* find_field(const std::vector<Field>& all, std::string_view name);

}  // namespace tourvane
