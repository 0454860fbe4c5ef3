#include "com/class_factory.h"

#include "com/com_object.h"
#include "com/com_ptr.h"
#include "com/error_info.h"
#include "com/server_classes.h"
#include "com/server_state.h"

#include <new>

namespace velkor6::com {
namespace {

class ClassFactory final : public ComObject<ClassFactory, IClassFactory> {
public:
    explicit ClassFactory(const ClassEntry& entry) : entry_(entry) {}

    void* interfaceFor(REFIID riid) {
        if (IsEqualIID(riid, IID_IUnknown) || IsEqualIID(riid, IID_IClassFactory))
            return static_cast<IClassFactory*>(this);
        return nullptr;
    }

    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID riid, void** out) override {
        if (out == nullptr)
            return E_POINTER;
        *out = nullptr;
        if (outer != nullptr)
            return CLASS_E_NOAGGREGATION;
        try {
            const auto object = ComPtr<IDispatch>::adopt(entry_.create());
            return object->QueryInterface(riid, out);
        } catch (const std::bad_alloc&) {
            return E_OUTOFMEMORY;
        } catch (const VbError& e) {
            return scodeOf(e.number());
        } catch (...) {
            return E_UNEXPECTED;
        }
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL lock) override {
        lockServer(lock != FALSE);
        return S_OK;
    }

private:
    friend ComObject;
    ~ClassFactory() = default;

    LiveObject live_;
    const ClassEntry& entry_;
};

} // namespace

IClassFactory* createClassFactory(const ClassEntry& entry) {
    return new ClassFactory(entry);
}

} // namespace velkor6::com
