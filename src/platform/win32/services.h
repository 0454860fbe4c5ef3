// The Win32 implementations of the platform services.
#pragma once

#include "velkor6/platform/platform.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace velkor6::win32 {

std::unique_ptr<Clock> createClock();
std::unique_ptr<FileSystem> createFileSystem();
std::unique_ptr<Environment> createEnvironment();
std::unique_ptr<InputState> createInputState();
std::unique_ptr<UserInterface> createUserInterface();
std::unique_ptr<Shell> createShell();
std::unique_ptr<Fonts> createFonts();
std::unique_ptr<Registry> createRegistry();
std::unique_ptr<FileStore> createFileStore();
std::unique_ptr<WindowManager> createWindowManager();
std::unique_ptr<XmlService> createXmlService();
std::unique_ptr<SettingsFiles> createSettingsFiles();
// The folder of the module (DLL or program) that holds the library.
std::u16string libraryFolder();

// A query with each $name replaced by the XPath literal of its value (MSXML has no variables).
std::u16string bindXPathVariables(std::u16string_view query,
                                  std::span<const XmlVariable> variables);

} // namespace velkor6::win32
