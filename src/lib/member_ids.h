// Member numbers (DISPIDs) of a class: the n-th distinct member name in row order has number n,
// so that a property's get and let rows share one number. The type library and the COM server
// both number members this way.
#pragma once

#include "lib/dispatch.h"

#include <cstdint>
#include <vector>

namespace velkor6::dispatch {

template <class Target>
std::vector<std::int32_t> memberIds(const Table<Target>& table) {
    std::vector<std::int32_t> ids(table.size(), 0);
    std::int32_t next = 1;
    for (std::size_t i = 0; i < table.size(); ++i) {
        for (std::size_t j = 0; j < i && ids[i] == 0; ++j) {
            if (sameName(table[j].name, table[i].name))
                ids[i] = ids[j];
        }
        if (ids[i] == 0)
            ids[i] = next++;
    }
    return ids;
}

} // namespace velkor6::dispatch
