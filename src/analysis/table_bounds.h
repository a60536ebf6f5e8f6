// The number of table entries the engine visits: a table's count, never beyond its capacity.
#pragma once

namespace flexley {

inline int used_entries(int count, int capacity) {
    return count < capacity ? count : capacity;
}

}  // namespace flexley
