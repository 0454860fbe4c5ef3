// An application "Sales" in C:\Apps\Sales, initialised over the fake platform.
#pragma once

#include "fake/fake_platform.h"
#include "velkor6/lib.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

namespace velkor6::apptest {

inline const std::u16string appFolder = u"C:\\Apps\\Sales";
inline const std::u16string iniPath = u"C:\\Apps\\Sales\\Sales.ini";
inline const std::u16string logPath = u"C:\\Users\\Test\\AppData\\Local\\Temp\\Sales.log";
inline const std::u16string libraryIni = u"C:\\Program Files (x86)\\velkor6\\velkor6.ini";

inline HostApp salesHost() {
    return {appFolder, u"Sales", 6, 1, 23};
}

class SalesApp : public ::testing::Test {
protected:
    explicit SalesApp(const Locale& locale = Locale::englishUS()) : fp(locale) {
        fp.files.addFolder(appFolder);
    }

    // Created on first use, so that a test can prepare files first.
    applib& app() {
        if (!app_)
            app_ = library().vkrInitApp(salesHost(), u"Sales");
        return *app_;
    }
    lib& library() {
        if (!lib_)
            lib_ = std::make_unique<lib>(fp.module);
        return *lib_;
    }
    std::string file(std::u16string_view path) {
        return fp.files.readFile(path).value_or("<missing>");
    }

    fake::FakePlatform fp;
    std::unique_ptr<lib> lib_;
    std::shared_ptr<applib> app_;
};

} // namespace velkor6::apptest
