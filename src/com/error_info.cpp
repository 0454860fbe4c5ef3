#include "com/error_info.h"

#include "com/com_ptr.h"

#include <new>

namespace velkor6::com {

HRESULT scodeOf(std::int32_t number) {
    if (number < 0)
        return static_cast<HRESULT>(number);
    return static_cast<HRESULT>(0x800A0000u | (static_cast<std::uint32_t>(number) & 0xFFFFu));
}

namespace {

HRESULT report(const VbError& e, EXCEPINFO* info) {
    const HRESULT scode = scodeOf(e.number());
    if (info == nullptr)
        return scode;
    *info = EXCEPINFO{};
    info->scode = scode;
    info->bstrSource = allocBstr(e.source());
    info->bstrDescription = allocBstr(e.description());
    return DISP_E_EXCEPTION;
}

} // namespace

HRESULT reportCurrentException(EXCEPINFO* info) {
    try {
        throw;
    } catch (const VbError& e) {
        return report(e, info);
    } catch (const std::bad_alloc&) {
        return report(VbError(vberr::outOfMemory), info);
    } catch (...) {
        // Nothing but VbError should escape a member; should something else, the client
        // gets VB's "Internal error" rather than a crashed host.
        return report(VbError(51), info);
    }
}

VbError errorFromInvoke(HRESULT hr, EXCEPINFO& info) {
    if (hr == DISP_E_EXCEPTION) {
        if (info.pfnDeferredFillIn != nullptr)
            info.pfnDeferredFillIn(&info);
        std::u16string sourceText = info.bstrSource ? fromBstr(info.bstrSource) : u"";
        std::u16string description =
            info.bstrDescription ? fromBstr(info.bstrDescription) : std::u16string();
        SysFreeString(info.bstrSource);
        SysFreeString(info.bstrDescription);
        SysFreeString(info.bstrHelpFile);
        info.bstrSource = info.bstrDescription = info.bstrHelpFile = nullptr;
        std::int32_t number = info.wCode != 0 ? info.wCode : static_cast<std::int32_t>(info.scode);
        if ((static_cast<std::uint32_t>(number) & 0xFFFF0000u) == 0x800A0000u)
            number &= 0xFFFF;
        if (description.empty())
            description = VbError::describe(number);
        return VbError(number, std::move(description), std::move(sourceText));
    }
    switch (hr) {
    case DISP_E_MEMBERNOTFOUND:
    case DISP_E_UNKNOWNNAME:
        return VbError(vberr::noSuchMember);
    case DISP_E_TYPEMISMATCH:
        return VbError(vberr::typeMismatch);
    case DISP_E_BADPARAMCOUNT:
        return VbError(vberr::wrongArgumentCount);
    case DISP_E_PARAMNOTOPTIONAL:
        return VbError(vberr::argumentNotOptional);
    case DISP_E_PARAMNOTFOUND:
        return VbError(vberr::namedArgumentNotFound);
    case DISP_E_OVERFLOW:
        return VbError(vberr::overflow);
    case E_OUTOFMEMORY:
        return VbError(vberr::outOfMemory);
    default:
        break;
    }
    if ((static_cast<std::uint32_t>(hr) & 0xFFFF0000u) == 0x800A0000u)
        return VbError(hr & 0xFFFF);
    return VbError(static_cast<std::int32_t>(hr), VbError::describe(static_cast<std::int32_t>(hr)));
}

} // namespace velkor6::com
