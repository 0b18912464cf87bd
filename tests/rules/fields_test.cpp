// The field table: every field of the game by name, in the order the game declares them.
#include "core/fields.h"
#include "test_game.h"

namespace tourvane::testing {
namespace {

// The record, the office's fields and the gig screen's, each in declared order (the order of
// the driver's dump): every field stands behind the last element of the one before.
TEST(Fields, StandInDeclaredOrderEachWithItsOwnBounds) {
    ScriptedPort port;
    Game g(port);
    const std::vector<Field> all = fields(g);
    ASSERT_EQ(all.size(), kFieldCount);
    const auto size = [](FieldType t) {
        return t == FieldType::String ? sizeof(std::string)
               : t == FieldType::Long ? sizeof(Long)
               : t == FieldType::Date ? sizeof(Date)
                                      : sizeof(Integer);
    };
    for (std::size_t k = 1; k < all.size(); ++k) {
        const Field& f = all[k - 1];
        const char* end =
            static_cast<const char*>(f.data) + (f.is_array() ? f.upper + 1 : 1) * size(f.type);
        EXPECT_LE(end, static_cast<const char*>(all[k].data))
            << f.name << " before " << all[k].name;
    }
    EXPECT_EQ(find_field(all, "signed")->data, &g.rec.signed_);
    EXPECT_EQ(find_field(all, "chartlife")->upper, kChartRows);
    EXPECT_EQ(find_field(all, "gigscore")->data, &g.gig.gigscore);
    EXPECT_EQ(find_field(all, "nosuchfield"), nullptr);
}

}  // namespace
}  // namespace tourvane::testing
