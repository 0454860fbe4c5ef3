// Registry service: read access to the system registry, with the results the ANSI registry
// functions give (names and string data through the ANSI code page).
#pragma once

#include "velkor6/export.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace velkor6 {

// A key handle as clients pass it: one of the predefined roots or a key the service opened.
using RegHandle = std::int32_t;

namespace regroot {
inline constexpr RegHandle classesRoot = static_cast<RegHandle>(0x80000000u);
inline constexpr RegHandle currentUser = static_cast<RegHandle>(0x80000001u);
inline constexpr RegHandle localMachine = static_cast<RegHandle>(0x80000002u);
inline constexpr RegHandle users = static_cast<RegHandle>(0x80000003u);
inline constexpr RegHandle performanceData = static_cast<RegHandle>(0x80000004u);
inline constexpr RegHandle currentConfig = static_cast<RegHandle>(0x80000005u);
inline constexpr RegHandle dynData = static_cast<RegHandle>(0x80000006u);

constexpr bool isPredefined(RegHandle h) {
    return h >= classesRoot && h <= dynData;
}
} // namespace regroot

// Value types as the registry stores them.
namespace regtype {
inline constexpr std::uint32_t none = 0;
inline constexpr std::uint32_t sz = 1;
inline constexpr std::uint32_t expandSz = 2;
inline constexpr std::uint32_t binary = 3;
inline constexpr std::uint32_t dword = 4;
inline constexpr std::uint32_t dwordBigEndian = 5;
inline constexpr std::uint32_t link = 6;
inline constexpr std::uint32_t multiSz = 7;
inline constexpr std::uint32_t resourceList = 8;
inline constexpr std::uint32_t fullResourceDescriptor = 9;
inline constexpr std::uint32_t resourceRequirementsList = 10;
inline constexpr std::uint32_t qword = 11;

// The types whose data the ANSI functions convert from UTF-16 to the ANSI code page.
constexpr bool isText(std::uint32_t type) {
    return type == sz || type == expandSz || type == multiSz;
}
} // namespace regtype

// Access rights asked for when a key is opened.
namespace regaccess {
inline constexpr std::uint32_t queryValue = 1;
inline constexpr std::uint32_t setValue = 2;
inline constexpr std::uint32_t createSubKey = 4;
inline constexpr std::uint32_t enumerateSubKeys = 8;
inline constexpr std::uint32_t notify = 16;
inline constexpr std::uint32_t createLink = 32;
} // namespace regaccess

// Result codes of the registry functions (the system's error numbers).
namespace regstatus {
inline constexpr std::int32_t success = 0;
inline constexpr std::int32_t fileNotFound = 2;
inline constexpr std::int32_t accessDenied = 5;
inline constexpr std::int32_t invalidHandle = 6;
inline constexpr std::int32_t badPathname = 161;
inline constexpr std::int32_t moreData = 234;
inline constexpr std::int32_t noMoreItems = 259;
} // namespace regstatus

struct RegValue {
    std::uint32_t type = regtype::none;
    std::string data; // bytes, as the ANSI query function returns them
    // Text data, where the service keeps every character (no code page in between): one
    // character for each byte of data, the characters data stands for.
    std::optional<std::u16string> text;
};

class VELKOR6_API Registry {
public:
    // An open key that closes itself. Predefined roots are handles too; closing them does nothing.
    class Key {
    public:
        Key() = default;
        Key(Registry& owner, RegHandle handle) : owner_(&owner), handle_(handle) {}
        Key(Key&& other) noexcept
            : owner_(std::exchange(other.owner_, nullptr)),
              handle_(std::exchange(other.handle_, 0)) {}
        Key& operator=(Key&& other) noexcept {
            if (this != &other) {
                close();
                owner_ = std::exchange(other.owner_, nullptr);
                handle_ = std::exchange(other.handle_, 0);
            }
            return *this;
        }
        Key(const Key&) = delete;
        Key& operator=(const Key&) = delete;
        ~Key() { close(); }

        explicit operator bool() const { return owner_ != nullptr; }
        RegHandle handle() const { return handle_; }

        // Leaves the key open beyond this object (the caller has taken over the handle).
        RegHandle release() {
            owner_ = nullptr;
            return handle_;
        }
        void close() {
            if (owner_ != nullptr)
                std::exchange(owner_, nullptr)->close(handle_);
        }

    private:
        Registry* owner_ = nullptr;
        RegHandle handle_ = 0;
    };

    virtual ~Registry() = default;

    // Opens subKey (key names separated by "\") below parent with the rights asked for (regaccess
    // bits). An empty subKey below a predefined root gives that root's handle back. The Key is
    // empty when the open fails; status, when given, receives the result code.
    Key open(RegHandle parent, std::u16string_view subKey, std::uint32_t access,
             std::int32_t* status = nullptr) {
        RegHandle handle = 0;
        const std::int32_t rc = openKey(parent, subKey, access, handle);
        if (status != nullptr)
            *status = rc;
        return rc == regstatus::success ? Key(*this, handle) : Key();
    }

    // Type and data of a value; an empty name reads the key's default value. Fails with
    // regstatus::moreData (value.type set, no data) when the data needs more than capacity bytes.
    virtual std::int32_t queryValue(RegHandle key, std::u16string_view name, std::size_t capacity,
                                    RegValue& value) = 0;
    // The name of the sub-key at index (from 0) in the registry's order. nameCapacity counts the
    // terminating NUL, as the system's buffers do; a longer name fails with regstatus::moreData.
    // Past the last sub-key: regstatus::noMoreItems.
    virtual std::int32_t enumKey(RegHandle key, std::uint32_t index, std::size_t nameCapacity,
                                 std::u16string& name) = 0;
    virtual std::int32_t close(RegHandle key) = 0;

protected:
    virtual std::int32_t openKey(RegHandle parent, std::u16string_view subKey, std::uint32_t access,
                                 RegHandle& result) = 0;
};

} // namespace velkor6
