#pragma once

#include <windows.h>

namespace Orva::Plugin {

// The add-in's one application object and its place in the library's lifetime. Nothing of the
// start-up may run under the loader lock (it starts a process, creates windows and COM
// objects), so DllMain only remembers the module; the application starts at the first call
// the host makes into the add-in, on the host's GUI thread.
void RememberAddinModule(HINSTANCE module);
// Runs the application object's start-up once.
void StartAddin();
// The host names the mail client's main window.
void HandOverMailClientWindow(HWND window);
// FreeLibrary: the application's exit, on the thread that unloads, under the loader lock.
// The application object itself is then left to the process, since releasing what it holds
// (language module, COM objects) is not allowed under the lock.
void StopAddin();
// The process is ending: the other threads are gone and other libraries may be unloaded
// already, so nothing may be closed or released any more.
void AbandonAddin();

}  // namespace Orva::Plugin
