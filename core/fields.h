#pragma once
// Every field of the game state by name, in declared order: the record, then the office's
// fields, then the gig screen's. The script driver's get, set and dump and the tests that
// compare whole games go through this list.

#include <string_view>
#include <vector>

#include "core/game.h"

namespace tourvane {

enum class FieldType { String, Integer, Long, Boolean, Date };

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

/// All fields of `g`, in declared order.
std::vector<Field> fields(Game& g);

/// The field of that name, or nullptr.
const Field* find_field(const std::vector<Field>& all, std::string_view name);

}  // namespace tourvane
