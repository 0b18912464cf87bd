#include "rules/files/save_file.h"

#include <array>
#include <cstddef>
#include <type_traits>
#include <utility>

#include "core/fields.h"
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

static_assert(save_records() == kSaveRecords, "the runs of a save hold other than 759 records");

/// Slot `slot` of an array field, or a plain field itself.
template <class F>
auto& element(F& field, int slot) {
    if constexpr (FieldShape<std::remove_const_t<F>>::upper < 0)
        return field;
    else
        return field[slot];
}

/// Transfers slot `slot` of the field on table line `line` (the field itself when it is plain).
template <std::size_t line, class Rec, class Io>
void transfer_field(Rec& r, Io& io, int slot) {
    constexpr auto& d = std::get<line>(kFields);
    auto& v = element(r.*d.member, slot);
    if constexpr (d.type == FieldType::String)
        io.text(v);
    else if constexpr (d.type == FieldType::Integer)
        io.integer(v);
    else if constexpr (d.type == FieldType::Long)
        io.long_(v);
    else if constexpr (d.type == FieldType::Boolean)
        io.boolean(v);
    else
        io.date(v);
}

/// Transfers slot `slot` of each field of a run, in their turn.
template <std::size_t... line, class Rec, class Io>
void transfer_slot(Rec& r, Io& io, int slot, std::index_sequence<line...>) {
    (transfer_field<line>(r, io, slot), ...);
}

/// The table lines of the fields of run `run` in their turn, as a sequence to expand.
template <SaveRun run, std::size_t... i>
constexpr auto in_turn(std::index_sequence<i...>) {
    return std::index_sequence<kRunLines<run>[i]...>();
}

/// Transfers the records of the run kSaveRuns[k]: at each of its slots, each of its fields.
template <std::size_t k, class Rec, class Io>
void transfer_run(Rec& r, Io& io) {
    constexpr SaveRunSpan span = kSaveRuns[k];
    constexpr auto lines =
        in_turn<span.run>(std::make_index_sequence<kRunLines<span.run>.size()>());
    if constexpr (span.run == SaveRun::Reserved)
        io.reserved();
    else if constexpr (span.first < 0)
        transfer_slot(r, io, -1, lines);
    else
        for (int slot = span.first; slot <= span.last; ++slot) transfer_slot(r, io, slot, lines);
}

template <class Rec, class Io, std::size_t... k>
void transfer_runs(Rec& r, Io& io, std::index_sequence<k...>) {
    (transfer_run<k>(r, io), ...);
}

/// The save file's layout, as the field table places the fields: every run in file order.
/// `Rec` is Module1 when loading and const Module1 when saving or checking.
template <class Rec, class Io>
void transfer(Rec& r, Io& io) {
    transfer_runs(r, io, std::make_index_sequence<kSaveRuns.size()>());
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
    if (!bytes || bytes->empty()) return std::string(kEmptySlot);
    // Read over an empty record rather than a copy of the running one: only saved fields show.
    const std::optional<Module1> game = parse_save(*bytes, Module1{});
    if (!game) return std::string(kDamagedSlot);
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
