#include "velkor6/lib.h"

#include "applib/host_app.h"

namespace velkor6 {

lib::lib(std::shared_ptr<Module> module)
    : module_(std::move(module)), app_(std::make_shared<applib>(module_)) {
    // A bare platform (the pure members need none) has nowhere to keep settings or a log; the
    // own context then stays as created.
    const Platform& p = module_->platform();
    if (p.fileSystem && p.environment && p.clock)
        app_->init(app::libraryHostApp(p), u"velkor6");
}

} // namespace velkor6
