#include "rules/files/save_file.h"

#include <utility>

#include "core/ui.h"

namespace tourvane {

namespace {

/// Fills the records from the record, in file order.
struct Saving {
    RecordWriter w{kSaveRecords};
    void text(const std::string& v) { w.put_string(v); }
    void integer(Integer v) { w.put_integer(v); }
    void long_(Long v) { w.put_long(v); }
    void boolean(Boolean v) { w.put_boolean(v); }
    void date(Date v) { w.put_date(v); }
    void reserved() { w.put_blank(); }
};

/// Fills the record from the records, in file order.
struct Loading {
    RecordReader r;
    void text(std::string& v) { r.get_string(v); }
    void integer(Integer& v) { v = r.get_integer(); }
    void long_(Long& v) { v = r.get_long(); }
    void boolean(Boolean& v) { v = r.get_boolean(); }
    void date(Date& v) { v = r.get_date(); }
    void reserved() { r.skip(); }
};

/// Walks the records as loading does and changes nothing: finds a record that can't be
/// trusted before a field is replaced.
struct Checking {
    RecordReader r;
    void text(const std::string&) { r.skip_string(); }
    void integer(Integer) { r.skip(); }
    void long_(Long) { r.skip(); }
    void boolean(Boolean) { r.skip(); }
    void date(Date) { r.get_date(); }
    void reserved() { r.skip(); }
};

/// The save file's layout: every saved field in the order of its record. `Rec` is Module1
/// when loading and const Module1 when saving or checking.
template <class Rec, class Io>
void transfer(Rec& r, Io& io) {
    io.text(r.bandname);
    io.text(r.playername);
    io.integer(r.popularity);
    io.boolean(r.signed_);
    for (int m = 1; m <= kMemberSlots; ++m) {
        io.text(r.membername[m]);
        io.integer(r.memberage[m]);
        io.text(r.membersex[m]);
        io.integer(r.memberhappy[m]);
        io.integer(r.memberill[m]);
        io.integer(r.memberfriction[m]);
        io.integer(r.membertalent[m]);
        io.integer(r.membercharisma[m]);
        io.integer(r.memberattitude[m]);
        io.integer(r.memberlooks[m]);
        io.integer(r.membercreativity[m]);
        io.integer(r.listslot[m]);
    }
    for (int s = 1; s <= kSongSlots; ++s) {
        io.text(r.songname[s]);
        io.integer(r.songquality[s]);
        io.boolean(r.released[s]);
        io.integer(r.chartlife[s]);
    }
    io.long_(r.cash);
    io.integer(r.vacancy);
    io.integer(r.tiredness);
    io.integer(r.nextsong);
    io.integer(r.songcount);
    io.integer(r.spareword);
    io.integer(r.songweeks);
    io.integer(r.interviewkind);
    io.date(r.gamedate);
    io.integer(r.promotion);
    io.reserved();
    for (int k = 1; k <= kChartRows; ++k) {
        io.text(r.chartband[k]);
        io.text(r.charttitle[k]);
        io.long_(r.chartsales[k]);
        io.long_(r.chartlastsales[k]);
        io.integer(r.chartplace[k]);
        io.integer(r.chartfame[k]);
        io.integer(r.chartquality[k]);
        io.integer(r.chartdemand[k]);
    }
    // The rival rows' life comes again behind the chart; row 20 stands in both runs and the
    // second one is what counts.
    for (int k = kFirstRivalRow; k <= kChartRows; ++k) io.integer(r.chartlife[k]);
    for (int v = 1; v <= kVenues; ++v) io.boolean(r.venueopen[v]);
}

/// Only record 1, the band's name, decides whether there is a save at all.
bool names_a_band(std::span<const std::uint8_t> bytes) {
    RecordReader first(bytes);
    return !first.get_string().empty() && !first.damaged();
}

}  // namespace

std::filesystem::path slot_file(int slot) {
    return "tvsave" + std::to_string(slot) + ".tvs";
}

std::vector<std::uint8_t> save_bytes(const Module1& r) {
    Saving io;
    transfer(r, io);
    return io.w.take();
}

bool load_save(std::span<const std::uint8_t> bytes, Module1& rec) {
    if (!names_a_band(bytes)) return false;
    Checking check{RecordReader(bytes)};
    transfer(std::as_const(rec), check);
    if (check.r.damaged()) return false;
    Loading io{RecordReader(bytes)};
    transfer(rec, io);
    return true;
}

std::optional<Module1> parse_save(std::span<const std::uint8_t> bytes, const Module1& running) {
    if (!names_a_band(bytes)) return std::nullopt;  // before copying anything
    std::optional<Module1> loaded(running);
    if (!load_save(bytes, *loaded)) return std::nullopt;
    return loaded;
}

bool write_save(const Module1& r, const std::filesystem::path& path, std::string& reason) {
    return replace_file(path, save_bytes(r), reason);
}

bool read_save(const std::filesystem::path& path, Module1& rec, FilePort& files) {
    const auto bytes = files.read(path, kSaveBytes);
    return bytes && load_save(*bytes, rec);
}

std::string slot_details(FilePort& files, int slot) {
    const auto bytes = files.read(slot_file(slot), kSaveBytes);
    if (!bytes || bytes->empty()) return "Empty slot: no game saved here yet.";
    // Read over an empty record rather than a copy of the running one: only saved fields show.
    const std::optional<Module1> game = parse_save(*bytes, Module1{});
    if (!game) return "This file is damaged and cannot be loaded.";
    return save_details(*game);
}

std::string save_details(const Module1& game) {
    return game.bandname + ", " + format_date(game.gamedate) + ", " + format_cash(game.cash);
}

std::string read_slot_name(FilePort& files, const std::filesystem::path& path) {
    const auto bytes = files.read(path, kRecordBytes);
    if (!bytes) return {};
    RecordReader reader(*bytes);
    std::string name = reader.get_string();
    return reader.damaged() ? std::string() : name;
}

void read_slot_names(Game& g) {
    for (int i = 0; i < kSaveSlots; ++i) g.rec.slotname[i] = read_slot_name(*g.files, slot_file(i));
}

}  // namespace tourvane
