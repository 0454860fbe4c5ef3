// A million late-bound calls into velkor6.dll, as a script client makes them: the process's
// memory and handle count must stay flat. Prints the call rate too.
// clang-format off
#include <windows.h>
#include <oleauto.h>
#include <psapi.h>
// clang-format on

#include <chrono>
#include <cstdio>

namespace {

struct Usage {
    std::size_t privateBytes = 0;
    DWORD handles = 0; // Wine reports none
};

Usage usage() {
    PROCESS_MEMORY_COUNTERS counters{};
    counters.cb = sizeof counters;
    GetProcessMemoryInfo(GetCurrentProcess(), &counters, sizeof counters);
    Usage u;
    // The committed private memory; Wine leaves PrivateUsage at 0.
    u.privateBytes = counters.PagefileUsage;
    GetProcessHandleCount(GetCurrentProcess(), &u.handles);
    return u;
}

class Client {
public:
    explicit Client(IDispatch* lib) : lib_(lib) {
        LPOLESTR find = const_cast<LPOLESTR>(L"vkrFindSubString");
        LPOLESTR fail = const_cast<LPOLESTR>(L"vkrDbl2Hex");
        ok_ = SUCCEEDED(lib_->GetIDsOfNames(IID_NULL, &find, 1, 0, &findId_)) &&
              SUCCEEDED(lib_->GetIDsOfNames(IID_NULL, &fail, 1, 0, &failId_));
        source_ = SysAllocString(L"Select a, b FROM t WHERE x = 1");
        pattern_ = SysAllocString(L"where|from");
    }
    ~Client() {
        SysFreeString(source_);
        SysFreeString(pattern_);
    }
    bool ok() const { return ok_; }

    // vkrFindSubString(source, pattern, 1, True, False, False, found) with found by reference
    // (the first listed alternative, "where", is at 20),
    // and every hundredth call one that raises (vkrDbl2Hex(1E+20) overflows).
    bool call(int i) {
        VARIANT found;
        VariantInit(&found);
        VARIANT args[7];
        for (VARIANT& a : args)
            VariantInit(&a);
        V_VT(&args[0]) = VT_BYREF | VT_VARIANT;
        V_VARIANTREF(&args[0]) = &found;
        V_VT(&args[1]) = VT_BOOL;
        V_BOOL(&args[1]) = VARIANT_FALSE;
        V_VT(&args[2]) = VT_BOOL;
        V_BOOL(&args[2]) = VARIANT_FALSE;
        V_VT(&args[3]) = VT_BOOL;
        V_BOOL(&args[3]) = VARIANT_TRUE;
        V_VT(&args[4]) = VT_I2;
        V_I2(&args[4]) = 1;
        V_VT(&args[5]) = VT_BSTR;
        V_BSTR(&args[5]) = pattern_;
        V_VT(&args[6]) = VT_BSTR;
        V_BSTR(&args[6]) = source_;
        DISPPARAMS params{args, nullptr, 7, 0};
        VARIANT result;
        VariantInit(&result);
        HRESULT hr = lib_->Invoke(findId_, IID_NULL, 0, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                                  &params, &result, nullptr, nullptr);
        const bool good = SUCCEEDED(hr) && V_VT(&result) == VT_I2 && V_I2(&result) == 20 &&
                          V_VT(&found) == VT_BSTR;
        VariantClear(&result);
        VariantClear(&found);
        if (i % 100 != 0)
            return good;
        VARIANT big;
        VariantInit(&big);
        V_VT(&big) = VT_R8;
        V_R8(&big) = 1e20;
        DISPPARAMS one{&big, nullptr, 1, 0};
        EXCEPINFO info{};
        hr = lib_->Invoke(failId_, IID_NULL, 0, DISPATCH_METHOD, &one, &result, &info, nullptr);
        SysFreeString(info.bstrSource);
        SysFreeString(info.bstrDescription);
        SysFreeString(info.bstrHelpFile);
        VariantClear(&result);
        return good && hr == DISP_E_EXCEPTION && info.scode == static_cast<SCODE>(0x800A0006);
    }

private:
    IDispatch* lib_;
    DISPID findId_ = 0;
    DISPID failId_ = 0;
    BSTR source_ = nullptr;
    BSTR pattern_ = nullptr;
    bool ok_ = false;
};

} // namespace

int main() {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    int failed = 0;
    {
        CLSID id{};
        IDispatch* lib = nullptr;
        if (FAILED(CLSIDFromProgID(L"velkor6.lib", &id)) ||
            FAILED(CoCreateInstance(id, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                    reinterpret_cast<void**>(&lib)))) {
            std::printf("FAIL velkor6.lib cannot be created\n0 passed, 1 failed\n");
            return 1;
        }
        Client client(lib);
        constexpr int warmUp = 20000;
        constexpr int calls = 1000000;
        for (int i = 0; i < warmUp && client.ok(); ++i)
            client.call(i);
        const Usage before = usage();
        const auto start = std::chrono::steady_clock::now();
        int wrong = 0;
        for (int i = 0; i < calls && client.ok(); ++i)
            wrong += client.call(i) ? 0 : 1;
        const double seconds =
            std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
        const Usage after = usage();
        lib->Release();

        std::printf("%d calls in %.2f s: %.0f calls per second\n", calls, seconds, calls / seconds);
        std::printf("private memory %zu KB before, %zu KB after; handles %lu before, %lu after\n",
                    before.privateBytes / 1024, after.privateBytes / 1024, before.handles,
                    after.handles);
        if (!client.ok() || wrong != 0) {
            std::printf("FAIL %d calls gave a wrong answer\n", client.ok() ? wrong : calls);
            ++failed;
        }
        // Flat: allocator noise stays well under a megabyte, a leak of even 1 byte per call
        // would not.
        if (after.privateBytes > before.privateBytes + 1024 * 1024) {
            std::printf("FAIL memory grew by %zu KB\n",
                        (after.privateBytes - before.privateBytes) / 1024);
            ++failed;
        }
        if (after.handles > before.handles + 8) {
            std::printf("FAIL handles grew by %lu\n", after.handles - before.handles);
            ++failed;
        }
    }
    CoUninitialize();
    std::printf("%d passed, %d failed\n", 3 - failed, failed);
    return failed;
}
