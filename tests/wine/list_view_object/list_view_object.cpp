// velkor6test.ListView: a list view as a VB form holds one, for the Wine script tests of the list
// and control helpers. Each object makes a hidden window of the calling process holding a real
// SysListView32 (report view, check boxes), a text box and a centred button, and answers the
// VB control's property names through IDispatch by name.
//
// Like VB's control it keeps a collection of the items (ListItems, in the order they were added,
// re-ordered only by its own sort when Sorted is True) apart from the rows the window shows, so
// that a sort by LVM_SORTITEMS changes the rows and leaves ListItems(i).Index alone. Each item's
// lParam is its own number; its row is found by that number.
// clang-format off
#include <windows.h>
#include <commctrl.h>
#include <oleauto.h>
// clang-format on

#include <algorithm>
#include <atomic>
#include <iterator>
#include <map>
#include <string>
#include <vector>

namespace {

const CLSID clsidListView = {
    0x3d2ac575, 0x9d74, 0x46c4, {0x8b, 0xa2, 0x6a, 0xc2, 0x95, 0x4d, 0x97, 0xc8}};
// Answered by list items only: gives the object itself, for SelectedItem = item.
const IID iidListItemSelf = {
    0x3d6da906, 0xec1d, 0x4a8f, {0x86, 0x1b, 0x36, 0x58, 0xbb, 0x9a, 0x44, 0xda}};
constexpr wchar_t progId[] = L"velkor6test.ListView";
constexpr wchar_t clsidText[] = L"{3D2AC575-9D74-46C4-8BA2-6AC2954D97C8}";

// VB's column widths are in twips of the form; at 96 dots per inch a pixel is 15 twips.
constexpr long twipsPerPixel = 15;
constexpr int defaultColumnPixels = 96;

struct Member {
    const wchar_t* name;
    DISPID id;
};

// The arguments of one call, in the order the caller wrote them; omitted ones are VT_EMPTY.
class Call {
public:
    Call(const DISPPARAMS& params, WORD flags) {
        put = (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
        const UINT named = put ? 1 : 0;
        if (put && params.cArgs > 0)
            copy(params.rgvarg[0], value);
        for (UINT i = params.cArgs; i-- > named;) {
            args.emplace_back();
            VariantInit(&args.back());
            copy(params.rgvarg[i], args.back());
        }
    }
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    ~Call() {
        for (auto& a : args)
            VariantClear(&a);
        VariantClear(&value);
    }

    bool has(std::size_t n) const { return n < args.size() && V_VT(&args[n]) != VT_EMPTY; }
    long number(std::size_t n, long fallback = 0) const {
        return has(n) ? longOf(args[n], fallback) : fallback;
    }
    std::wstring text(std::size_t n) const { return has(n) ? textOf(args[n]) : std::wstring(); }
    long valueNumber() const { return longOf(value, 0); }
    bool valueTrue() const { return longOf(value, 0) != 0; }
    std::wstring valueText() const { return textOf(value); }

    static long longOf(const VARIANT& v, long fallback) {
        VARIANT n;
        VariantInit(&n);
        if (FAILED(VariantChangeType(&n, const_cast<VARIANT*>(&v), 0, VT_I4)))
            return fallback;
        return V_I4(&n);
    }
    static std::wstring textOf(const VARIANT& v) {
        VARIANT s;
        VariantInit(&s);
        if (FAILED(VariantChangeType(&s, const_cast<VARIANT*>(&v), 0, VT_BSTR)))
            return {};
        std::wstring result(V_BSTR(&s) ? V_BSTR(&s) : L"", SysStringLen(V_BSTR(&s)));
        VariantClear(&s);
        return result;
    }

    bool put = false;
    std::vector<VARIANT> args;
    VARIANT value{};

private:
    static void copy(const VARIANT& from, VARIANT& to) {
        VariantInit(&to);
        if (V_VT(&from) == VT_ERROR && V_ERROR(&from) == DISP_E_PARAMNOTFOUND)
            return;
        VariantCopyInd(&to, const_cast<VARIANT*>(&from));
    }
};

HRESULT answerLong(VARIANT* result, long n) {
    if (result != nullptr) {
        V_VT(result) = VT_I4;
        V_I4(result) = n;
    }
    return S_OK;
}
HRESULT answerBool(VARIANT* result, bool b) {
    if (result != nullptr) {
        V_VT(result) = VT_BOOL;
        V_BOOL(result) = b ? VARIANT_TRUE : VARIANT_FALSE;
    }
    return S_OK;
}
HRESULT answerText(VARIANT* result, const std::wstring& s) {
    if (result != nullptr) {
        V_VT(result) = VT_BSTR;
        V_BSTR(result) = SysAllocStringLen(s.data(), static_cast<UINT>(s.size()));
    }
    return S_OK;
}
// Takes over the reference the caller made (nullptr answers Nothing).
HRESULT answerObject(VARIANT* result, IDispatch* object) {
    if (result == nullptr) {
        if (object != nullptr)
            object->Release();
        return S_OK;
    }
    V_VT(result) = VT_DISPATCH;
    V_DISPATCH(result) = object;
    return S_OK;
}

// IDispatch by member names only; no type information.
class Dispatch : public IDispatch {
public:
    explicit Dispatch(const Member* members, std::size_t count)
        : members_(members), count_(count) {}
    virtual ~Dispatch() = default;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
        if (out == nullptr)
            return E_POINTER;
        *out = nullptr;
        if (iid == IID_IUnknown || iid == IID_IDispatch)
            *out = static_cast<IDispatch*>(this);
        else
            *out = self(iid);
        if (*out == nullptr)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG STDMETHODCALLTYPE AddRef() override { return ++references_; }
    ULONG STDMETHODCALLTYPE Release() override {
        const ULONG left = --references_;
        if (left == 0)
            delete this;
        return left;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override {
        *count = 0;
        return S_OK;
    }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID,
                                            DISPID* ids) override {
        HRESULT hr = S_OK;
        for (UINT i = 0; i < count; ++i) {
            ids[i] = DISPID_UNKNOWN;
            for (std::size_t m = 0; m < count_; ++m)
                if (lstrcmpiW(names[i], members_[m].name) == 0)
                    ids[i] = members_[m].id;
            if (ids[i] == DISPID_UNKNOWN)
                hr = DISP_E_UNKNOWNNAME;
        }
        return hr;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* params,
                                     VARIANT* result, EXCEPINFO*, UINT*) override {
        if (result != nullptr)
            VariantInit(result);
        const DISPPARAMS none{};
        Call call(params != nullptr ? *params : none, flags);
        return invoke(id, call, result);
    }

protected:
    virtual HRESULT invoke(DISPID id, Call& call, VARIANT* result) = 0;
    virtual void* self(REFIID) { return nullptr; }

private:
    const Member* members_;
    std::size_t count_;
    std::atomic<ULONG> references_{1};
};

class ListViewTest;

// The texts a sort compares, read before it: the rows are in flux while it runs.
struct SortKeys {
    std::map<LPARAM, std::wstring> texts;
    bool descending = false;
};

int CALLBACK compareKeys(LPARAM first, LPARAM second, LPARAM context) {
    const auto& keys = *reinterpret_cast<const SortKeys*>(context);
    const auto a = keys.texts.find(first);
    const auto b = keys.texts.find(second);
    if (a == keys.texts.end() || b == keys.texts.end())
        return 0;
    const int order = lstrcmpiW(a->second.c_str(), b->second.c_str());
    return keys.descending ? -order : order;
}

// Holds a reference to the list view object for as long as a part of it lives.
class Part : public Dispatch {
public:
    Part(const Member* members, std::size_t count, ListViewTest* owner);
    ~Part() override;

protected:
    ListViewTest& owner() const { return *owner_; }

private:
    ListViewTest* owner_;
};

struct Column {
    std::wstring key;
    long alignment = 0;
};

class ListViewTest final : public Dispatch {
public:
    ListViewTest();
    ~ListViewTest() override {
        DestroyWindow(frame_);
        DestroyWindow(edit_);
    }

    HWND list() const { return list_; }
    HWND button() const { return button_; }
    std::vector<LPARAM>& items() { return items_; }
    std::vector<Column>& columns() { return columns_; }

    LRESULT send(UINT message, WPARAM w = 0, LPARAM l = 0) const {
        return SendMessageW(list_, message, w, l);
    }
    int rowOf(LPARAM item) const {
        LVFINDINFOW find{};
        find.flags = LVFI_PARAM;
        find.lParam = item;
        return static_cast<int>(
            send(LVM_FINDITEMW, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(&find)));
    }
    LPARAM itemAt(int row) const {
        LVITEMW data{};
        data.mask = LVIF_PARAM;
        data.iItem = row;
        return send(LVM_GETITEMW, 0, reinterpret_cast<LPARAM>(&data)) ? data.lParam : 0;
    }
    std::wstring cell(int row, int column) const {
        std::vector<wchar_t> buffer(4096);
        LVITEMW data{};
        data.iSubItem = column;
        data.pszText = buffer.data();
        data.cchTextMax = static_cast<int>(buffer.size());
        const auto n = static_cast<int>(
            send(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&data)));
        return n > 0 ? std::wstring(data.pszText, n) : std::wstring();
    }
    void setCell(int row, int column, const std::wstring& text) const {
        LVITEMW data{};
        data.iSubItem = column;
        data.pszText = const_cast<wchar_t*>(text.c_str());
        send(LVM_SETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&data));
    }
    LPARAM addItem(const std::wstring& text) {
        const LPARAM item = nextItem_++;
        LVITEMW data{};
        data.mask = LVIF_TEXT | LVIF_PARAM;
        data.iItem = static_cast<int>(send(LVM_GETITEMCOUNT));
        data.pszText = const_cast<wchar_t*>(text.c_str());
        data.lParam = item;
        send(LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&data));
        items_.push_back(item);
        return item;
    }
    // What VB's control does while Sorted is True: the rows by the text of column SortKey,
    // without regard to case, and ListItems in the new order.
    void sortIfSorted() {
        if (!sorted_)
            return;
        SortKeys keys;
        keys.descending = sortOrder_ == 1;
        const int count = static_cast<int>(send(LVM_GETITEMCOUNT));
        for (int row = 0; row < count; ++row)
            keys.texts[itemAt(row)] = cell(row, sortKey_);
        send(LVM_SORTITEMS, reinterpret_cast<WPARAM>(&keys),
             reinterpret_cast<LPARAM>(&compareKeys));
        for (int row = 0; row < count; ++row)
            items_[static_cast<std::size_t>(row)] = itemAt(row);
    }

    IDispatch* listItem(LPARAM item);
    IDispatch* listItemAt(long index) {
        if (index < 1 || index > static_cast<long>(items_.size()))
            return nullptr;
        return listItem(items_[static_cast<std::size_t>(index - 1)]);
    }
    IDispatch* columnHeader(long index);

protected:
    HRESULT invoke(DISPID id, Call& call, VARIANT* result) override;

private:
    HWND frame_ = nullptr;
    HWND list_ = nullptr;
    HWND edit_ = nullptr;
    HWND button_ = nullptr;
    std::vector<LPARAM> items_;
    std::vector<Column> columns_;
    LPARAM nextItem_ = 1;
    bool sorted_ = false;
    long sortKey_ = 0;
    long sortOrder_ = 0;
};

Part::Part(const Member* members, std::size_t count, ListViewTest* owner)
    : Dispatch(members, count), owner_(owner) {
    owner_->AddRef();
}
Part::~Part() {
    owner_->Release();
}

// --- ListItem --------------------------------------------------------------------------

const Member listItemMembers[] = {{L"Text", DISPID_VALUE}, {L"Index", 1},    {L"Selected", 2},
                                  {L"Checked", 3},         {L"SubItems", 4}, {L"EnsureVisible", 5}};

class ListItem final : public Part {
public:
    ListItem(ListViewTest* owner, LPARAM item)
        : Part(listItemMembers, std::size(listItemMembers), owner), item_(item) {}
    LPARAM item() const { return item_; }

protected:
    void* self(REFIID iid) override { return iid == iidListItemSelf ? this : nullptr; }

    HRESULT invoke(DISPID id, Call& call, VARIANT* result) override {
        ListViewTest& o = owner();
        const int row = o.rowOf(item_);
        if (row < 0)
            return E_FAIL; // removed from the list
        switch (id) {
        case DISPID_VALUE:
            if (call.put) {
                o.setCell(row, 0, call.valueText());
                return S_OK;
            }
            return answerText(result, o.cell(row, 0));
        case 1: {
            const auto& items = o.items();
            const auto at = std::find(items.begin(), items.end(), item_);
            return answerLong(result, static_cast<long>(at - items.begin()) + 1);
        }
        case 2:
        case 3: {
            const UINT mask = id == 2 ? LVIS_SELECTED : LVIS_STATEIMAGEMASK;
            const UINT on = id == 2 ? LVIS_SELECTED : INDEXTOSTATEIMAGEMASK(2);
            const UINT off = id == 2 ? 0 : INDEXTOSTATEIMAGEMASK(1);
            if (call.put) {
                LVITEMW state{};
                state.stateMask = mask;
                state.state = call.valueTrue() ? on : off;
                o.send(LVM_SETITEMSTATE, static_cast<WPARAM>(row),
                       reinterpret_cast<LPARAM>(&state));
                return S_OK;
            }
            return answerBool(result, o.send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), mask) ==
                                          static_cast<LRESULT>(on));
        }
        case 4: {
            const long column = call.number(0, -1);
            if (column < 1 || column >= static_cast<long>(o.columns().size()))
                return DISP_E_BADINDEX;
            if (call.put) {
                o.setCell(row, column, call.valueText());
                return S_OK;
            }
            return answerText(result, o.cell(row, column));
        }
        case 5:
            o.send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
            return S_OK;
        }
        return DISP_E_MEMBERNOTFOUND;
    }

private:
    LPARAM item_;
};

IDispatch* ListViewTest::listItem(LPARAM item) {
    return new ListItem(this, item);
}

// --- ListItems -------------------------------------------------------------------------

const Member listItemsMembers[] = {
    {L"Item", DISPID_VALUE}, {L"Count", 1}, {L"Clear", 2}, {L"Add", 3}};

class ListItems final : public Part {
public:
    explicit ListItems(ListViewTest* owner)
        : Part(listItemsMembers, std::size(listItemsMembers), owner) {}

protected:
    HRESULT invoke(DISPID id, Call& call, VARIANT* result) override {
        ListViewTest& o = owner();
        switch (id) {
        case DISPID_VALUE: {
            IDispatch* item = o.listItemAt(call.number(0));
            return item != nullptr ? answerObject(result, item) : DISP_E_BADINDEX;
        }
        case 1:
            return answerLong(result, static_cast<long>(o.items().size()));
        case 2:
            o.send(LVM_DELETEALLITEMS);
            o.items().clear();
            return S_OK;
        case 3: // Add([Index], [Key], [Text]): at the end
            return answerObject(result, o.listItem(o.addItem(call.text(2))));
        }
        return DISP_E_MEMBERNOTFOUND;
    }
};

// --- ColumnHeader(s) -------------------------------------------------------------------

const Member columnMembers[] = {
    {L"Text", DISPID_VALUE}, {L"Width", 1}, {L"Alignment", 2}, {L"Key", 3}, {L"Index", 4}};

// Column number index (0-based) as it stands; a column that is gone answers an error.
class ColumnHeader final : public Part {
public:
    ColumnHeader(ListViewTest* owner, int column)
        : Part(columnMembers, std::size(columnMembers), owner), column_(column) {}

protected:
    HRESULT invoke(DISPID id, Call& call, VARIANT* result) override {
        ListViewTest& o = owner();
        if (column_ >= static_cast<int>(o.columns().size()))
            return E_FAIL;
        switch (id) {
        case DISPID_VALUE: {
            wchar_t text[256] = L"";
            LVCOLUMNW data{};
            data.mask = LVCF_TEXT;
            std::wstring value = call.valueText();
            data.pszText = call.put ? value.data() : text;
            data.cchTextMax = 256;
            if (call.put) {
                o.send(LVM_SETCOLUMNW, column_, reinterpret_cast<LPARAM>(&data));
                return S_OK;
            }
            o.send(LVM_GETCOLUMNW, column_, reinterpret_cast<LPARAM>(&data));
            return answerText(result, data.pszText);
        }
        case 1:
            if (call.put) {
                o.send(LVM_SETCOLUMNWIDTH, column_,
                       MAKELPARAM(call.valueNumber() / twipsPerPixel, 0));
                return S_OK;
            }
            return answerLong(result, static_cast<long>(o.send(LVM_GETCOLUMNWIDTH, column_)) *
                                          twipsPerPixel);
        case 2:
            return answerLong(result, o.columns()[column_].alignment);
        case 3:
            return answerText(result, o.columns()[column_].key);
        case 4:
            return answerLong(result, column_ + 1);
        }
        return DISP_E_MEMBERNOTFOUND;
    }

private:
    int column_;
};

IDispatch* ListViewTest::columnHeader(long index) {
    if (index < 1 || index > static_cast<long>(columns_.size()))
        return nullptr;
    return new ColumnHeader(this, static_cast<int>(index - 1));
}

const Member columnsMembers[] = {
    {L"Item", DISPID_VALUE}, {L"Count", 1}, {L"Clear", 2}, {L"Add", 3}};

class ColumnHeaders final : public Part {
public:
    explicit ColumnHeaders(ListViewTest* owner)
        : Part(columnsMembers, std::size(columnsMembers), owner) {}

protected:
    HRESULT invoke(DISPID id, Call& call, VARIANT* result) override {
        ListViewTest& o = owner();
        auto& columns = o.columns();
        switch (id) {
        case DISPID_VALUE: {
            IDispatch* column = o.columnHeader(call.number(0));
            return column != nullptr ? answerObject(result, column) : DISP_E_BADINDEX;
        }
        case 1:
            return answerLong(result, static_cast<long>(columns.size()));
        case 2:
            while (o.send(LVM_DELETECOLUMN, 0))
                ;
            columns.clear();
            return S_OK;
        case 3: { // Add([Index], [Key], [Text], [Width], [Alignment])
            const long count = static_cast<long>(columns.size());
            const long index = call.has(0) ? call.number(0) : count + 1;
            if (index < 1 || index > count + 1)
                return DISP_E_BADINDEX;
            Column column{call.text(1), call.number(4)};
            std::wstring text = call.text(2);
            LVCOLUMNW data{};
            data.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT;
            data.pszText = text.data();
            data.cx = call.has(3) ? call.number(3) / twipsPerPixel : defaultColumnPixels;
            data.fmt = column.alignment == 1   ? LVCFMT_RIGHT
                       : column.alignment == 2 ? LVCFMT_CENTER
                                               : LVCFMT_LEFT;
            o.send(LVM_INSERTCOLUMNW, static_cast<WPARAM>(index - 1),
                   reinterpret_cast<LPARAM>(&data));
            columns.insert(columns.begin() + (index - 1), column);
            return answerObject(result, o.columnHeader(index));
        }
        }
        return DISP_E_MEMBERNOTFOUND;
    }
};

// --- The button, a control with a window --------------------------------------------------

const Member buttonMembers[] = {{L"hwnd", 1}};

class Button final : public Part {
public:
    explicit Button(ListViewTest* owner) : Part(buttonMembers, std::size(buttonMembers), owner) {}

protected:
    HRESULT invoke(DISPID id, Call&, VARIANT* result) override {
        if (id != 1)
            return DISP_E_MEMBERNOTFOUND;
        return answerLong(result, static_cast<long>(reinterpret_cast<LONG_PTR>(owner().button())));
    }
};

// --- The list view ---------------------------------------------------------------------

enum RootId : DISPID {
    hwndId = 1,
    listItemsId,
    columnHeadersId,
    sortedId,
    sortKeyId,
    sortOrderId,
    multiSelectId,
    selectedItemId,
    addRowId,
    cellTextId,
    windowStyleId,
    editHwndId,
    buttonId,
    extendedStyleId,
};
const Member rootMembers[] = {
    {L"hwnd", hwndId},
    {L"ListItems", listItemsId},
    {L"ColumnHeaders", columnHeadersId},
    {L"Sorted", sortedId},
    {L"SortKey", sortKeyId},
    {L"SortOrder", sortOrderId},
    {L"MultiSelect", multiSelectId},
    {L"SelectedItem", selectedItemId},
    // Test only: AddRow(text, sub-item texts...) adds an item with its cells; CellText(row,
    // column) reads the window's row as shown; WindowStyle(hwnd) any window's style word;
    // EditHwnd a text box's window; Button a centred button; ExtendedStyle the list's
    // extended style.
    {L"AddRow", addRowId},
    {L"CellText", cellTextId},
    {L"WindowStyle", windowStyleId},
    {L"EditHwnd", editHwndId},
    {L"Button", buttonId},
    {L"ExtendedStyle", extendedStyleId},
};

long windowNumber(HWND w) {
    return static_cast<long>(reinterpret_cast<LONG_PTR>(w));
}

ListViewTest::ListViewTest() : Dispatch(rootMembers, std::size(rootMembers)) {
    INITCOMMONCONTROLSEX init{sizeof init, ICC_LISTVIEW_CLASSES};
    InitCommonControlsEx(&init);
    frame_ = CreateWindowExW(0, L"STATIC", L"velkor6 list view", WS_OVERLAPPEDWINDOW, 0, 0, 500,
                             300, nullptr, nullptr, nullptr, nullptr);
    list_ = CreateWindowExW(0, WC_LISTVIEWW, L"",
                            WS_CHILD | WS_VISIBLE | LVS_REPORT | LVS_SINGLESEL | LVS_SHOWSELALWAYS,
                            0, 0, 480, 200, frame_, nullptr, nullptr, nullptr);
    send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_CHECKBOXES);
    // A text box of its own (no child), so that its style is only its own.
    edit_ = CreateWindowExW(0, L"EDIT", L"", WS_POPUP | ES_LEFT, 0, 0, 100, 20, nullptr, nullptr,
                            nullptr, nullptr);
    button_ =
        CreateWindowExW(0, L"BUTTON", L"OK", WS_CHILD | WS_VISIBLE | BS_PUSHBUTTON | BS_CENTER, 0,
                        210, 80, 24, frame_, nullptr, nullptr, nullptr);
}

HRESULT ListViewTest::invoke(DISPID id, Call& call, VARIANT* result) {
    switch (id) {
    case hwndId:
        return answerLong(result, windowNumber(list_));
    case listItemsId:
        if (call.has(0)) {
            IDispatch* item = listItemAt(call.number(0));
            return item != nullptr ? answerObject(result, item) : DISP_E_BADINDEX;
        }
        return answerObject(result, new ListItems(this));
    case columnHeadersId:
        if (call.has(0)) {
            IDispatch* column = columnHeader(call.number(0));
            return column != nullptr ? answerObject(result, column) : DISP_E_BADINDEX;
        }
        return answerObject(result, new ColumnHeaders(this));
    case sortedId:
        if (call.put) {
            sorted_ = call.valueTrue();
            sortIfSorted();
            return S_OK;
        }
        return answerBool(result, sorted_);
    case sortKeyId:
    case sortOrderId: {
        long& setting = id == sortKeyId ? sortKey_ : sortOrder_;
        if (call.put) {
            setting = call.valueNumber();
            sortIfSorted();
            return S_OK;
        }
        return answerLong(result, setting);
    }
    case multiSelectId: {
        const LONG style = GetWindowLongW(list_, GWL_STYLE);
        if (call.put) {
            SetWindowLongW(list_, GWL_STYLE,
                           call.valueTrue() ? style & ~LVS_SINGLESEL : style | LVS_SINGLESEL);
            return S_OK;
        }
        return answerBool(result, (style & LVS_SINGLESEL) == 0);
    }
    case selectedItemId: {
        if (call.put) {
            // SelectedItem = item: the item gets the focus and the selection.
            ListItem* item = nullptr;
            if (V_VT(&call.value) != VT_DISPATCH || V_DISPATCH(&call.value) == nullptr ||
                FAILED(V_DISPATCH(&call.value)
                           ->QueryInterface(iidListItemSelf, reinterpret_cast<void**>(&item))))
                return DISP_E_TYPEMISMATCH;
            const int row = rowOf(item->item());
            item->Release();
            LVITEMW state{};
            state.stateMask = state.state = LVIS_SELECTED | LVIS_FOCUSED;
            send(LVM_SETITEMSTATE, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&state));
            return S_OK;
        }
        auto row = static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED));
        if (row < 0)
            row = static_cast<int>(send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_FOCUSED));
        return answerObject(result, row >= 0 ? listItem(itemAt(row)) : nullptr);
    }
    case addRowId: {
        const LPARAM item = addItem(call.text(0));
        const int row = rowOf(item);
        for (std::size_t column = 1; column < call.args.size(); ++column)
            setCell(row, static_cast<int>(column), call.text(column));
        sortIfSorted();
        return answerObject(result, listItem(item));
    }
    case cellTextId:
        return answerText(result, cell(call.number(0), call.number(1)));
    case windowStyleId:
        return answerLong(
            result, GetWindowLongW(reinterpret_cast<HWND>(static_cast<LONG_PTR>(call.number(0))),
                                   GWL_STYLE));
    case editHwndId:
        return answerLong(result, windowNumber(edit_));
    case buttonId:
        return answerObject(result, new Button(this));
    case extendedStyleId:
        return answerLong(result, static_cast<long>(send(LVM_GETEXTENDEDLISTVIEWSTYLE)));
    }
    return DISP_E_MEMBERNOTFOUND;
}

// --- Class factory and registration -------------------------------------------------------

class Factory final : public IClassFactory {
public:
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** out) override {
        if (iid == IID_IUnknown || iid == IID_IClassFactory) {
            *out = this;
            return S_OK;
        }
        *out = nullptr;
        return E_NOINTERFACE;
    }
    // One factory for the life of the process.
    ULONG STDMETHODCALLTYPE AddRef() override { return 2; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }
    HRESULT STDMETHODCALLTYPE CreateInstance(IUnknown* outer, REFIID iid, void** out) override {
        *out = nullptr;
        if (outer != nullptr)
            return CLASS_E_NOAGGREGATION;
        auto* object = new ListViewTest;
        const HRESULT hr = object->QueryInterface(iid, out);
        object->Release();
        return hr;
    }
    HRESULT STDMETHODCALLTYPE LockServer(BOOL) override { return S_OK; }
};

Factory factory;

bool setValue(const std::wstring& key, const wchar_t* name, const std::wstring& value) {
    HKEY k = nullptr;
    if (RegCreateKeyExW(HKEY_LOCAL_MACHINE, key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &k,
                        nullptr) != ERROR_SUCCESS)
        return false;
    const LSTATUS status =
        RegSetValueExW(k, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                       static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t)));
    RegCloseKey(k);
    return status == ERROR_SUCCESS;
}

} // namespace

extern "C" {

HRESULT __stdcall DllGetClassObject(REFCLSID clsid, REFIID iid, void** out) {
    if (clsid != clsidListView) {
        *out = nullptr;
        return CLASS_E_CLASSNOTAVAILABLE;
    }
    return factory.QueryInterface(iid, out);
}

// The windows of the objects belong to the process's windows; the DLL stays loaded.
HRESULT __stdcall DllCanUnloadNow() {
    return S_FALSE;
}

// Per machine: Wine reads classes only from there.
HRESULT __stdcall DllRegisterServer() {
    HMODULE self = nullptr;
    wchar_t path[MAX_PATH];
    if (!GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                            reinterpret_cast<LPCWSTR>(&DllRegisterServer), &self) ||
        GetModuleFileNameW(self, path, MAX_PATH) == 0)
        return E_FAIL;
    const std::wstring classes = L"Software\\Classes\\";
    const std::wstring clsidKey = classes + L"CLSID\\" + clsidText;
    const bool ok = setValue(classes + progId + L"\\CLSID", nullptr, clsidText) &&
                    setValue(clsidKey, nullptr, progId) &&
                    setValue(clsidKey + L"\\ProgID", nullptr, progId) &&
                    setValue(clsidKey + L"\\InprocServer32", nullptr, path) &&
                    setValue(clsidKey + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
    return ok ? S_OK : E_FAIL;
}

HRESULT __stdcall DllUnregisterServer() {
    const std::wstring classes = L"Software\\Classes\\";
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, (classes + progId).c_str());
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, (classes + L"CLSID\\" + clsidText).c_str());
    return S_OK;
}

} // extern "C"
