#include "core/fields.h"

namespace tourvane {

namespace {

template <class T>
Field scalar(const char* name, FieldType type, T& v) {
    return {name, type, &v, -1};
}

template <class T, std::size_t N>
Field array(const char* name, FieldType type, std::array<T, N>& a) {
    return {name, type, a.data(), static_cast<int>(N) - 1};
}

}  // namespace

std::vector<Field> fields(Game& g) {
    using enum FieldType;
    Module1& r = g.rec;
    MainFields& m = g.main;
    return {
        scalar("bandname", String, r.bandname),
        scalar("popularity", Integer, r.popularity),
        array("songname", String, r.songname),
        array("songquality", Integer, r.songquality),
        scalar("cash", Long, r.cash),
        array("slotname", String, r.slotname),
        array("malename", String, r.malename),
        array("femalename", String, r.femalename),
        array("surname", String, r.surname),
        scalar("playername", String, r.playername),
        array("membername", String, r.membername),
        array("memberage", Integer, r.memberage),
        array("membersex", String, r.membersex),
        array("memberhappy", Integer, r.memberhappy),
        array("memberill", Integer, r.memberill),
        array("memberfriction", Integer, r.memberfriction),
        array("membertalent", Integer, r.membertalent),
        array("membercharisma", Integer, r.membercharisma),
        array("memberattitude", Integer, r.memberattitude),
        array("memberlooks", Integer, r.memberlooks),
        array("membercreativity", Integer, r.membercreativity),
        array("instrument", String, r.instrument),
        scalar("vacancy", Integer, r.vacancy),
        array("listslot", Integer, r.listslot),
        scalar("tiredness", Integer, r.tiredness),
        scalar("nextsong", Integer, r.nextsong),
        scalar("songcount", Integer, r.songcount),
        array("practice", Integer, r.practice),
        array("titlefirst", String, r.titlefirst),
        array("titlesecond", String, r.titlesecond),
        array("setlist", Integer, r.setlist),
        array("venuename", String, r.venuename),
        array("venuefame", Integer, r.venuefame),
        scalar("spareword", Integer, r.spareword),
        array("ticketprice", Integer, r.ticketprice),
        array("venueopen", Boolean, r.venueopen),
        scalar("songweeks", Integer, r.songweeks),
        scalar("interviewkind", Integer, r.interviewkind),
        scalar("bestsong", Integer, r.bestsong),
        scalar("gamedate", Date, r.gamedate),
        scalar("promotion", Integer, r.promotion),
        scalar("attendance", Integer, r.attendance),
        scalar("newstext", String, r.newstext),
        scalar("messagetext", String, r.messagetext),
        scalar("messagefrom", String, r.messagefrom),
        scalar("hirecost", Integer, r.hirecost),
        scalar("gigprofit", Integer, r.gigprofit),
        scalar("signed", Boolean, r.signed_),
        array("released", Boolean, r.released),
        array("singlehype", Integer, r.singlehype),
        array("singledemand", Integer, r.singledemand),
        array("singlesales", Long, r.singlesales),
        array("chartband", String, r.chartband),
        array("charttitle", String, r.charttitle),
        array("chartsales", Long, r.chartsales),
        array("chartlastsales", Long, r.chartlastsales),
        array("chartplace", Integer, r.chartplace),
        array("chartfame", Integer, r.chartfame),
        array("chartquality", Integer, r.chartquality),
        array("chartdemand", Integer, r.chartdemand),
        array("chartlife", Integer, r.chartlife),
        array("rivalname", String, r.rivalname),
        array("rivalfame", Integer, r.rivalfame),
        // the office
        scalar("applicantname", String, m.applicantname),
        scalar("applicanttalent", Integer, m.applicanttalent),
        scalar("applicantcharisma", Integer, m.applicantcharisma),
        scalar("applicantattitude", Integer, m.applicantattitude),
        scalar("applicantlooks", Integer, m.applicantlooks),
        scalar("applicantcreativity", Integer, m.applicantcreativity),
        scalar("applicantsex", String, m.applicantsex),
        scalar("selectedmember", Integer, m.selectedmember),
        scalar("applicantage", Integer, m.applicantage),
        scalar("demosent", Boolean, m.demosent),
        scalar("applicantsseen", Integer, m.applicantsseen),
        scalar("weeksales", Long, m.weeksales),
        scalar("rivalsales", Long, m.rivalsales),
        scalar("royalty", Long, m.royalty),
        scalar("selectedsong", Integer, m.selectedsong),
        // the gig screen
        scalar("gigvenue", Integer, g.gig.gigvenue),
        scalar("tracksadded", Integer, g.gig.tracksadded),
        scalar("gigscore", Integer, g.gig.gigscore),
    };
}

const Field* find_field(const std::vector<Field>& all, std::string_view name) {
    for (const Field& f : all)
        if (name == f.name) return &f;
    return nullptr;
}

}  // namespace tourvane
