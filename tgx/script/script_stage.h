#pragma once

#include "platform/framework/carray.h"
#include "platform/framework/cfile.h"
#include "platform/system/module.h"
#include "tgx/wnd/stage.h"

#include <vector>

namespace tgx {

class ScriptObserver;

/// What running scripts need from the main window, in addition to what windows need. AMainWin implements it
/// and documents the operations.
class TGX_API ScriptStage : public Stage {
public:
    virtual AWnd* createNewWindow(const CString& id, int x, int y, int w, int h,
                                  const CString& className) = 0;
    virtual AWnd* readScriptFile(const CString& name, HINSTANCE instance, unsigned resourceId,
                                 const CString& toWindow, int finalRead) = 0;
    virtual AScreen* addScreen(const CString& id, int x, int y, int w, int h) = 0;

    virtual int doSubroutine(CFile* stream, const CString& name, AWnd* parent,
                             CArray<CFile*, CFile*>& gotoFiles) = 0;
    virtual int convertResourceToFile(HINSTANCE instance, unsigned resource, CMemFile* file,
                                      const CString& type) = 0;
    virtual void deleteAllGotoFiles(CArray<CFile*, CFile*>& gotoFiles) = 0;
    virtual const std::vector<ScriptObserver*>& getScriptObservers() const = 0;
};

} // namespace tgx
