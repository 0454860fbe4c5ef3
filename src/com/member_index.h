// Names and member numbers of one class's table, for GetIDsOfNames and Invoke.
#pragma once

#include "core/text.h"
#include "lib/dispatch.h"
#include "lib/idl_names.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace velkor6::com {

template <class Target>
class MemberIndex {
public:
    using Member = dispatch::Member<Target>;

    explicit MemberIndex(const dispatch::Table<Target>& table) : table_(table) {
        for (std::size_t i = 0; i < table.size(); ++i) {
            const auto id = static_cast<std::size_t>(table[i].id);
            if (id > getters_.size()) {
                getters_.resize(id, nullptr);
                setters_.resize(id, nullptr);
            }
            byName_.emplace(key(table[i].name), table[i].id);
            auto& slot =
                table[i].kind == CallKind::PropertyLet ? setters_[id - 1] : getters_[id - 1];
            if (slot == nullptr)
                slot = &table[i];
        }
    }

    const dispatch::Table<Target>& table() const { return table_; }

    // The member number of a name in any letter case, or 0.
    std::int32_t idOf(std::u16string_view name) const {
        const auto it = byName_.find(key(name));
        return it == byName_.end() ? 0 : it->second;
    }

    // The row a call reaches: a let for property assignments, otherwise a method or a get.
    const Member* row(std::int32_t id, CallKind kind) const {
        if (id < 1 || static_cast<std::size_t>(id) > getters_.size())
            return nullptr;
        const auto i = static_cast<std::size_t>(id - 1);
        return kind == CallKind::PropertyLet ? setters_[i] : getters_[i];
    }

    // The position of a parameter of the member, by name in any letter case, or -1.
    std::int32_t paramOf(std::int32_t id, std::u16string_view name) const {
        for (const auto kind : {CallKind::Method, CallKind::PropertyLet}) {
            const Member* m = row(id, kind);
            if (m == nullptr)
                continue;
            for (std::size_t p = 0; p < m->params.size(); ++p) {
                const std::u16string& own = m->params[p].name;
                if (dispatch::sameName(own, name) ||
                    (typelib::isIdlKeyword(own) &&
                     dispatch::sameName(typelib::idlParameterName(own), name)))
                    return static_cast<std::int32_t>(p);
            }
        }
        return -1;
    }

private:
    static std::u16string key(std::u16string_view name) {
        std::u16string k(name);
        for (char16_t& c : k)
            c = foldCase(c);
        return k;
    }

    const dispatch::Table<Target>& table_;
    std::vector<const Member*> getters_;
    std::vector<const Member*> setters_;
    std::unordered_map<std::u16string, std::int32_t> byName_;
};

} // namespace velkor6::com
