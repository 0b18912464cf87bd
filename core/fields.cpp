#include "core/fields.h"

#include <utility>

namespace tourvane {

namespace {

template <class Owner>
Owner& owner(Game& g) {
    if constexpr (std::is_same_v<Owner, Module1>)
        return g.rec;
    else if constexpr (std::is_same_v<Owner, MainFields>)
        return g.main;
    else
        return g.gig;
}

template <class Owner, class Member>
Field field_of(Game& g, const FieldDef<Owner, Member>& d) {
    Member& m = owner<Owner>(g).*d.member;
    if constexpr (!FieldShape<Member>::array)
        return {d.name, d.type, &m, -1};
    else
        return {d.name, d.type, m.data(), FieldShape<Member>::upper};
}

}  // namespace

std::vector<Field> fields(Game& g) {
    return std::apply([&](const auto&... d) { return std::vector<Field>{field_of(g, d)...}; },
                      kFields);
}

const Field* find_field(const std::vector<Field>& all, std::string_view name) {
    for (const Field& f : all)
        if (name == f.name) return &f;
    return nullptr;
}

}  // namespace tourvane
