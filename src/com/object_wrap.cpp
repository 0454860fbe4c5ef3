#include "com/object_wrap.h"

#include "com/com_ptr.h"
#include "com/foreign_object.h"
#include "com/object_dispatch.h"
#include "com/server_classes.h"
#include "com/std_picture.h"
#include "windows/picture_object.h"

namespace velkor6::com {

// {D7F0ADFB-9C3A-4B5D-94A5-0687D541147A}
const IID iidOwnObject = {
    0xd7f0adfb, 0x9c3a, 0x4b5d, {0x94, 0xa5, 0x06, 0x87, 0xd5, 0x41, 0x14, 0x7a}};

const void* thisModuleToken() {
    static const char token = 0;
    return &token;
}

IDispatch* dispatchFor(const ObjectRef& object) {
    if (!object)
        return nullptr;
    if (const auto* foreign = dynamic_cast<const ForeignObject*>(object.get()))
        return ComPtr<IDispatch>::share(foreign->dispatch()).detach();
    // The caller's forms and controls take a picture only as a StdPicture.
    if (const auto* picture = dynamic_cast<const windows::PictureObject*>(object.get())) {
        if (IDispatch* d = createStdPicture(picture->image()))
            return d;
    }
    for (const ClassEntry& c : serverClasses()) {
        if (IDispatch* d = c.wrap(object))
            return d;
    }
    return createObjectDispatch(object);
}

ObjectRef objectFor(IDispatch* dispatch) {
    if (dispatch == nullptr)
        return nullptr;
    ComPtr<OwnObject> own;
    if (SUCCEEDED(dispatch->QueryInterface(iidOwnObject, reinterpret_cast<void**>(own.put()))) &&
        own->owner() == thisModuleToken()) {
        if (ObjectRef object = own->object())
            return object;
    }
    return std::make_shared<ForeignObject>(ComPtr<IDispatch>::share(dispatch));
}

} // namespace velkor6::com
