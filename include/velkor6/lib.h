// Class `lib`: the function library. Each member's body sits beside its row of the member table in
// one src/lib file per family; through that table the members are reachable by name (CLI, COM).
#pragma once

#include "velkor6/applib.h"
#include "velkor6/export.h"
#include "velkor6/module.h"
#include "velkor6/records.h"
#include "velkor6/variant.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velkor6 {

class VELKOR6_API lib {
public:
    // Creates and initialises the library's own application context "velkor6".
    explicit lib(std::shared_ptr<Module> module);

    Module& module() { return *module_; }
    const Locale& locale() const { return module_->locale(); }

    // --- Application context -------------------------------------------------------------
    // A new, initialised context for the host application; each call makes an independent one.
    std::shared_ptr<applib> vkrInitApp(const HostApp& oApp, std::u16string_view sAppName);
    // The library's own context.
    applib& ownApp() { return *app_; }

    // --- Substring search, count and replace ---------------------------------------------
    std::int16_t vkrFindSubString(std::u16string_view sSource, std::u16string_view sFind,
                                  std::int16_t iStartSearch = 1, bool bIgnoreCase = true,
                                  bool bFindFirst = true, bool bWholeWord = false,
                                  std::u16string* sFound = nullptr);
    std::int16_t vkrFindLastSubString(std::u16string_view sSource, std::u16string_view sFind,
                                      std::int16_t iStartSearch = 1, bool bIgnoreCase = true);
    std::int16_t vkrHasSubString(std::u16string_view sSource, std::u16string_view sFind,
                                 std::int16_t iStartSearch = 1, bool bIgnoreCase = true);
    std::int16_t vkrCountSubString(std::u16string_view sSource, std::u16string_view sFind,
                                   std::int16_t iStartSearch = 1, bool bIgnoreCase = true);
    std::int16_t vkrCountSubStringExt(std::u16string_view sSource, std::u16string_view sFind,
                                      std::int16_t iStartSearch = 1, bool bIgnoreCase = true,
                                      std::u16string_view sNotInSigns = {});
    std::u16string vkrGetSubString(std::u16string_view sSource, std::u16string_view sBefore,
                                   std::u16string_view sAfter, std::int16_t iStartSearch = 1,
                                   bool bIgnoreCase = true, bool bWholeWord = false);
    void vkrSeparateString(std::u16string_view sSource, std::u16string_view sFind,
                           std::u16string& sBefore, std::u16string& sTerm, std::u16string& sAfter,
                           std::int16_t iStartSearch = 1, bool bIgnoreCase = true);
    std::u16string vkrReplaceInString(std::u16string_view sSource, std::u16string_view sFind,
                                      std::u16string_view sReplace, std::int16_t iStartSearch = 1,
                                      bool bIgnoreCase = true, bool bOnlyAtBeginning = false,
                                      bool bNotInSigns = true, bool bWholeWord = false);
    std::u16string vkrReplaceInStringExt(std::u16string_view sSource, std::u16string_view sFind,
                                         std::u16string_view sReplace,
                                         std::int16_t iStartSearch = 1, bool bIgnoreCase = true,
                                         bool bOnlyAtBeginning = false, bool bWholeWord = false,
                                         bool bNotNumVals = false, bool bOnlyNumVals = false,
                                         std::u16string_view sNotInSigns = {});
    bool vkrIsInSigns(std::u16string_view sSource, std::u16string_view sSigns, std::int16_t iStart,
                      std::int16_t iLen);
    bool vkrIsNumericWord(std::u16string_view sSource, std::int16_t iStart, std::int16_t iLen);
    std::u16string vkrMid(std::u16string_view Source, std::int32_t Start, std::int32_t length = -1);
    void vkrMidLet(std::u16string& Source, std::int32_t Start, std::int32_t length,
                   std::u16string_view value);

    // --- Brackets and expressions ---------------------------------------------------------
    std::u16string vkrExtractBrackets(std::u16string_view sSource,
                                      std::u16string_view sBrackets = u"()",
                                      std::int16_t iStart = 1);
    std::u16string vkrExtractExpression(std::u16string_view sSource,
                                        std::u16string_view sSeparators = u",",
                                        std::u16string_view sBrackets = u"()|[]|{}",
                                        bool bIgnoreCase = true, std::u16string* sRest = nullptr);
    std::u16string vkrPhraseWithoutBrackets(std::u16string_view sSource,
                                            std::u16string_view sBrackets = u"()");
    bool vkrSeparateFunction(std::u16string_view sSource, std::u16string& sName,
                             std::vector<std::u16string>& vArgs);
    std::u16string vkrReplaceDecimalChars(std::u16string_view sSource,
                                          std::u16string_view sDecimalChar = {});
    std::u16string vkrResConv(std::u16string_view sText, bool bToXML = true);

    // --- Number codes and value scrambling -----------------------------------------------
    std::u16string vkrLng2Str(std::int32_t lValue);
    std::int32_t vkrStr2Lng(std::u16string_view sValue);
    std::u16string vkrEncryptedValue(std::u16string_view sValue);
    std::u16string vkrDecryptedValue(std::u16string_view sValue);

    // --- Number parsing and conversion ---------------------------------------------------
    double vkrVal(std::u16string_view sSource);
    Variant vkrCVal(std::int32_t VarType, const Variant& SourceVal);
    Variant vkrRound(const Variant& vSourceValue, std::int16_t iDecimalPlaces);
    std::int32_t vkrHexToDec(const Variant& vHexVal);
    double vkrHex2Dbl(std::u16string_view sValue);
    std::u16string vkrDbl2Hex(double dValue, std::int16_t iMinLen = 0);
    void vkrBruchrechnung(float nValue, std::int32_t& lZaehler, std::int32_t& lNenner);
    bool vkrCompare(float nSource, float nTarget, float nTolerance);
    bool vkrAND(std::int32_t lVal1, std::int32_t lVal2);

    // --- SQL literal and value helpers ----------------------------------------------------
    std::u16string vkrSQLDate(const Variant& vValue, bool bMSSQLServer = false);
    std::u16string vkrSQLDouble(const Variant& vValue);
    std::u16string vkrSQLFilter(const VariantArray& vParams);
    Variant vkrGetNotNullValue(const Variant& vValue);
    bool vkrIsEmpty(const Variant& vValue);
    bool vkrIsInList(const Variant& vValue, const VariantArray& vList);
    bool vkrArrayHasData(const Variant& vArray);
    void vkrBubbleSort(VariantArray& sList);
    void vkrClearCollection(ObjectRef& oCollection, bool bSetToNothing = false);

    // --- Call by name and compression ----------------------------------------------------
    // "Deflate", "Inflate" or "InflateStrict" (any letter case) applied to the text vParam.
    // Also "GetFontList": the installed font families, a sorted String array.
    Variant vkrGlobalVar(std::u16string_view sName, const Variant& vParam = Variant::missing());
    // "GetFontList": the installed font families as a Collection keyed by name.
    Variant vkrGlobalObj(std::u16string_view sName, const Variant& vParam = Variant::missing());
    // "GetFontList": as vkrGlobalVar.
    Variant vkrProperty(std::u16string_view sName);

    // --- Paths and files -----------------------------------------------------------------
    std::u16string vkrGetFullPath(std::u16string_view sPath, std::u16string_view sFile);
    // The Windows directory (not the system directory), cached per object.
    std::u16string vkrSystemDir();
    std::u16string vkrTempDir();
    std::u16string vkrFileStream(std::u16string_view sFilename);
    void vkrFileStreamLet(std::u16string_view sFilename, std::u16string_view value);
    void vkrChangeToPath(std::u16string_view sPath);
    std::u16string vkrGetAbsolutePath(std::u16string_view sSource, std::u16string_view sTarget);
    std::u16string vkrGetRelativePath(std::u16string_view sSource, std::u16string_view sTarget);
    bool vkrFileExists(std::u16string_view filename);
    bool vkrPathExists(std::u16string_view sPath);
    std::u16string vkrFindFile(std::u16string_view sFilename, std::u16string_view sFolder = {});
    bool vkrCheckAttributes(std::u16string_view sPathName, std::int16_t iAllowedAttribute);
    bool vkrSeparateFile(std::u16string_view sFullName, typFileInfo& tFileInfo);

    // --- Predefined expressions and text files -------------------------------------------
    // pairs: nullptr when the caller left vExpr out.
    void prfReplacePredefinedExpressions(std::u16string& sString, const Variant* vExpr = nullptr);
    std::u16string prfTextStream(std::u16string_view sFilename);
    std::u16string prfPreFormatXML(std::u16string_view sXML);

    // --- Folders, special folders and file comparison ------------------------------------
    std::u16string prfGetSpecialFolder(std::int32_t lngCSIDL);
    bool prfChangeDir(std::u16string_view sFolder);
    bool prfMakeDir(std::u16string_view sFolder);
    bool prfCompareFiles(std::u16string_view sFilename, std::u16string_view sSource,
                         std::u16string_view sTarget);
    // oSplash, when given, answers Visible, Hide and Show.
    bool prfCompareFolders(std::u16string_view sSource, std::u16string_view sTarget,
                           std::u16string_view sMask = u"*.*", const ObjectRef& oSplash = {});
    // A String array (lower bound 0) of the matching names; empty when there are none.
    Variant prfGetFileList(std::u16string_view sFolder, std::u16string_view sMask = u"*.*",
                           std::u16string_view sLikeFilter = u"*");
    bool prfIsAdmin();

    // --- Registry reading ----------------------------------------------------------------
    Variant regGetValue(std::int32_t lRegKey, std::u16string_view sRegSubKey,
                        std::u16string_view sValueName,
                        const Variant& vDefaultValue = Variant::missing());
    std::int32_t regGetLong(std::int32_t lRegKey, std::u16string_view sRegSubKey,
                            std::u16string_view sValueName, std::int32_t lDefaultValue = 0);
    std::u16string regGetString(std::int32_t lRegKey, std::u16string_view sRegSubKey,
                                std::u16string_view sValueName,
                                std::u16string_view sDefaultValue = {});
    std::int32_t regSubKeyCount(std::int32_t lRegKey, std::u16string_view sRegSubKey);
    // Fills sKeys with the names of the direct sub-keys; leaves it alone when the key does not
    // open.
    void regFindKeys(std::int32_t lRegKey, std::u16string_view sRegSubKey, VariantArray& sKeys);

    // --- XML resources and resource libraries -----------------------------------------------
    // Lookups in the caller's resource document (a DOM document answering selectNodes) or in
    // one of its nodes; missing items and attributes give "".
    std::u16string vkrXMLRes(const ObjectRef& oDOMDoc, std::u16string_view sName,
                             std::int16_t iNumber = -1);
    std::u16string vkrXMLItemProp(const ObjectRef& oXMLNode, std::u16string_view sProp);
    void vkrXMLFillList(const ObjectRef& oDOMDoc, const ObjectRef& oList,
                        std::u16string_view sName);
    void vkrXMLFillTabStrip(const ObjectRef& oDOMDoc, const ObjectRef& oTab,
                            std::u16string_view sName);
    void vkrXMLFillComboWithResList(const ObjectRef& oDOMDoc, const ObjectRef& oCombo,
                                    std::u16string_view sResID,
                                    std::u16string_view sInclNoFormat = {});
    // The string lResID of the string tables of oApp's resource library for its language.
    std::u16string vkrRes(applib& oApp, std::int32_t lResID);

    // --- Dialogs -----------------------------------------------------------------------------
    // The library's own boxes, captioned in the current language; results are the message-box
    // codes (1 OK ... 7 No) and 0 when the box was closed through its close box.
    std::int32_t vkrMsgBox(std::u16string_view Prompt, std::u16string_view Detail,
                           std::int32_t Buttons = 0, std::u16string_view Title = {},
                           std::int32_t PromptColor = 0, std::int16_t FontSize = 10,
                           bool FontBold = true);
    // sPrompt is an RTF fragment, optionally followed by "|width|height" in twips.
    std::int32_t vkrExtMsgBox(std::u16string_view sPrompt, std::int32_t lButtons = 0,
                              std::u16string_view sTitle = {}, std::int32_t lWidthInTwips = 0,
                              std::int32_t lHeightInTwips = 0);
    bool vkrAsk(const Variant& sQuestion, const Variant& vTitle = Variant::missing(),
                bool bDefaultNo = false);
    bool vkrExtAsk(const Variant& sQuestion, std::u16string_view sTitle = {},
                   std::int32_t lWidthInTwips = 0, std::int32_t lHeightInTwips = 0,
                   bool bDefaultNo = false);
    void vkrErrorMsg(std::int32_t lError, std::u16string_view sErrorDesc,
                     std::u16string_view sErrorSource);
    // The 1-based number of the pressed button, 0 for Esc.
    std::int16_t vkrGetAnswer(std::u16string_view Prompt, std::u16string_view Detail,
                              std::u16string_view Title, const VariantArray& Buttons);
    // 1 with the typed text in value, or 2 with value unchanged. "##|" in front of the prompt
    // limits the input to ## characters.
    std::int32_t vkrInputValue(std::u16string_view Prompt, std::u16string_view Title,
                               std::u16string& value, std::u16string_view defaultValue = {});
    std::int32_t vkrInputCode(std::u16string_view Prompt, std::u16string_view Title,
                              std::u16string& value, std::u16string_view defaultValue = {});
    // Raises error 5 for a source that is not a text box, combo box, node, list item or list box.
    void vkrZoomTextBox(applib& oApp, const ObjectRef& Source, std::u16string_view Description = {},
                        bool IgnoreAttributes = false);
    // The status window; a missing argument leaves its part of the window as it stands.
    void vkrSendMessage(const Variant& Prompt = Variant::missing(),
                        const Variant& Title = Variant::missing(),
                        const Variant& ShowCounter = Variant::missing(),
                        const Variant& CurCount = Variant::missing(),
                        const Variant& MaxCount = Variant::missing(), std::int32_t ParentHwnd = 0,
                        const Variant& WidthInTwips = Variant::missing(),
                        const Variant& HeightInTwips = Variant::missing(),
                        const Variant& MsgTopInTwips = Variant::missing(), bool NoEvents = false,
                        bool OpenAsTopMost = true);
    void vkrClearMessage();
    void vkrHideMessage();
    // Sets oSource's MousePointer to the hourglass (true) or the default pointer (false).
    void vkrShowWaitLet(const ObjectRef& oSource, bool value);
    // --- Window lookup, waiting and z-order ------------------------------------------------
    // Window handles are any program's windows: Win32 HWNDs on Windows, X window ids on X11.
    std::int32_t vkrFindWindow(std::int32_t lTopHwnd, std::u16string_view lpClassName,
                               std::u16string_view lpClassCaption, bool bFindNext = false);
    // ParentForm (Nothing when not given) answers Enabled.
    bool vkrWaitForClassStarted(std::u16string_view sClassName, std::u16string_view sClassCaption,
                                std::int32_t lMaxSeconds = 300, const ObjectRef& ParentForm = {});
    bool vkrWaitForClassFinished(std::u16string_view sClassName, std::u16string_view sClassCaption,
                                 std::int32_t lMaxSeconds = 300, const ObjectRef& ParentForm = {});
    void vkrWait(std::int32_t lMilliSeconds, bool bIsActive = true);
    void vkrTopMost(std::int32_t lTopMost);
    void vkrOpenTopMost(std::int32_t lTopMost, bool bCenter = false);
    void vkrOpenApplicationTopMost(std::int32_t lTopMost, std::int32_t lAppHwnd,
                                   bool bCenter = false);
    void vkrApplicationTopMost(std::int32_t lhWndClient, std::int32_t lHWndParent = 0);
    // oForms answers Count and its default member with a 0-based index; each form answers Name.
    // oForm, when given, receives the form found and is left alone otherwise.
    bool vkrIsFormOpen(const ObjectRef& oForms, std::u16string_view strFormName,
                       Variant* oForm = nullptr);

    // --- Window shape, screen metrics and input state -------------------------------------
    void vkrRoundWindow(std::int32_t hwnd, std::int32_t lX, std::int32_t lY,
                        std::int32_t lXOffset = 0, std::int32_t lYOffset = 0);
    void vkrWindowShadow(std::int32_t hwnd);
    void vkrClipCursor(std::int32_t hwnd = 0, std::int32_t hSecondWnd = 0);
    std::int32_t vkrGetFrameSize(std::int32_t lHwnd);
    std::int32_t vkrGetMenuHeight();
    std::int32_t vkrGetScreenHeight();
    std::int32_t vkrGetScreenWidth();
    // tSize is left alone for handle 0.
    void vkrGetInternalFormSize(std::int32_t lHwnd, SIZE& tSize);
    bool vkrIsKeyDown(std::int32_t lKey);
    bool vkrIsMouseButtonDown(std::int16_t lButton);

    // --- List view helpers ---------------------------------------------------------------
    // oListView answers ListItems, ColumnHeaders, SelectedItem, Sorted, SortKey, SortOrder,
    // MultiSelect and hwnd, as a list view control does; what only the list's window tells (item
    // state, column widths, the typed sort) needs a window behind hwnd. These members trap their
    // errors and answer 0, false, "" or -1 (an index).
    void vkrSortListView(const ObjectRef& oListView, std::int16_t iSortCol);
    void vkrSetListViewHeaders(const ObjectRef& oListView, std::u16string_view sHeaders,
                               bool bClearListItems = false);
    // bAdd adds the style only when it is exactly True (-1).
    void vkrSetListViewStyle(std::int32_t hCtrl, std::int32_t lStyle, const Variant& bAdd = true);
    std::int16_t vkrGetListViewCol(const ObjectRef& oListView, std::int32_t lXPosInPixel);
    bool vkrHasSelectedItem(const ObjectRef& oListView);
    ObjectRef vkrSelectedItem(const ObjectRef& oListView, bool bForceSelection = false);
    std::int32_t vkrSelItemCount(const ObjectRef& oListView);
    void vkrListCheckAllItemsLet(const ObjectRef& oListView, bool value);
    std::int32_t vkrListCheckedItems(const ObjectRef& oListView);
    // oItem: a list item, a number (the 0-based index itself, for the state members) or Null.
    std::int32_t vkrListItemIndex(const ObjectRef& oListView, const Variant& oItem);
    bool vkrListItemChecked(const ObjectRef& oListView, const Variant& oItem);
    void vkrListItemCheckedLet(const ObjectRef& oListView, const Variant& oItem, bool value);
    bool vkrListItemSelected(const ObjectRef& oListView, const Variant& oItem);
    void vkrListItemSelectedLet(const ObjectRef& oListView, const Variant& oItem, bool value);
    std::u16string vkrListItemText(const ObjectRef& oListView, const Variant& oItem,
                                   std::int16_t iSubItem = 0);
    void vkrListItemTextLet(const ObjectRef& oListView, const Variant& oItem, std::int16_t iSubItem,
                            std::u16string_view value);
    std::int32_t vkrListSelectedItems(const ObjectRef& oListView);
    void vkrListSelectItems(const ObjectRef& oListView, bool bSelect);
    // Called from the list's KeyPress handler; reads the platform clock.
    bool vkrSearchListItem(const ObjectRef& oListView, std::int16_t& KeyAscii,
                           bool bDeselectBefore = true);
    // The list's Parent answers p_cTooltip, which answers ToolText and Reset.
    void vkrShowListViewTooltip(const ObjectRef& oListView, float x, float y,
                                const Variant& sDefaultTooltip = u"");
    void vkrCopyListView(const ObjectRef& oSource, const ObjectRef& oTarget);
    std::int32_t vkrLVWCallback(std::int32_t pfn);

    // --- List box, tab and field helpers ---------------------------------------------------
    // The caller's controls answer their VB members by name; a control array X of a form is
    // the form's property X, answering LBound, UBound and Item. Errors give neutral results.
    std::int32_t vkrListBoxItemSum(const ObjectRef& oList);
    void vkrListBoxItemSumLet(const ObjectRef& oList, std::int32_t value);
    std::int32_t vkrListBoxData(const ObjectRef& oControl, std::int16_t iIndex = -1);
    void vkrListBoxDataLet(const ObjectRef& oControl, std::int16_t iIndex, std::int32_t value);
    bool vkrSelectListBoxItem(const ObjectRef& oControl, std::int32_t lValue);
    void vkrOnTabClick(const ObjectRef& oTabControl, std::u16string_view sContainerName);
    // -1 when no option of the group is set.
    std::int16_t vkrGetOptionIndex(const ObjectRef& oForm, std::u16string_view sOptionGroup);
    bool vkrIsSelected(const ObjectRef& oControl);
    void vkrSelectField(const ObjectRef& oCtrl, bool bChangeSelection = false,
                        const ObjectRef& StatusPanel = {});
    bool vkrHasIndex(const ObjectRef& oCtrl);
    bool vkrIsControl(const ObjectRef& oContainer, std::u16string_view sCtlName,
                      std::int16_t iIndex = -1);
    ObjectRef vkrGetContainer(const ObjectRef& oControl);
    void vkrSetFocus(const ObjectRef& oCtrl);
    // The previous style of the edit window; 0 when it is no window.
    std::int32_t vkrSetNoNumbers(std::int32_t lHwnd, bool bFlag);
    // Alignment is one of ButtonStyleConsts.
    void vkrAlignText(const ObjectRef& oButton, std::int32_t Alignment);
    void vkrResizeGridCol(const ObjectRef& oGridControl, std::int32_t lVarCol,
                          std::int32_t lNewWidth = -1);
    // A press in the grip zone starts a drag that later moves follow while the left button is
    // down.
    void vkrCheckMouseMove(const ObjectRef& oControl, const ObjectRef& oPicBox, float x, float y,
                           std::int16_t iDiff = 90);
    void vkrCheckMouseDown(const ObjectRef& oControl, const ObjectRef& oPicBox, float x, float y,
                           std::int16_t iDiff = 90);

private:
    std::shared_ptr<Module> module_;
    std::shared_ptr<applib> app_;
    std::u16string windowsDirectory_;
    // The list keystroke search: the text typed so far (upper case) and, in seconds since
    // midnight, the time after which the next key starts a new one.
    std::u16string listSearchText_;
    float listSearchDeadline_ = 0;
    // The list item the tooltip last showed: its list's handle and Index (0 for none).
    bool tooltipShown_ = false;
    std::int32_t tooltipList_ = 0;
    std::int32_t tooltipItem_ = 0;
    // The splitter drag vkrCheckMouseDown started: its picture box and the control coordinate
    // the next move is measured from.
    struct SplitterDrag {
        std::weak_ptr<Object> pictureBox;
        double from = 0;
    };
    std::optional<SplitterDrag> splitterDrag_;
};

} // namespace velkor6
