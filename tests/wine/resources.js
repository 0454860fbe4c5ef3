// Class lib's XML resource members from a JScript client: VBScript under Wine cannot create
// MSXML's DOMDocument (it implements IObjectWithSite), JScript can. The caller's list, combo and
// tab strip are JScript objects the library fills by name.
var passed = 0, failed = 0;

function check(what, actual, expected) {
    if (actual === expected) {
        ++passed;
    } else {
        ++failed;
        WScript.Echo("FAIL " + what + ": got [" + actual + "], expected [" + expected + "]");
    }
}

function attempt(what, action) {
    try {
        action();
    } catch (e) {
        ++failed;
        WScript.Echo("FAIL " + what + ": error " + (e.number & 0xFFFF) + " " + e.description);
    }
}

function listBox() {
    var box = {items: [], NewIndex: -1};
    box.Clear = function () { box.items = []; box.NewIndex = -1; };
    box.AddItem = function (text) { box.items.push(text); box.NewIndex = box.items.length - 1; };
    return box;
}

var lib = new ActiveXObject("velkor6.lib");
var doc = new ActiveXObject("Msxml2.DOMDocument.6.0");
doc.loadXML("<resources>" +
            "<item name='colour' number='1' text='red'/>" +
            "<item name='colour' number='2' text='green'/>" +
            "<item name='title' number='7' text='Report'/>" +
            "</resources>");

attempt("vkrXMLRes", function () { check("vkrXMLRes", lib.vkrXMLRes(doc, "title"), "Report"); });
attempt("vkrXMLRes by number", function () {
    check("vkrXMLRes by number", lib.vkrXMLRes(doc, "colour", 2), "green");
});
attempt("vkrXMLItemProp", function () {
    var node = doc.selectSingleNode("//item[@name='title']");
    check("vkrXMLItemProp", lib.vkrXMLItemProp(node, "number"), "7");
});

// A JScript object takes no indexed property assignment (ItemData(i) = n): the fill stops after
// the first entry and keeps what it added, as it does on any error.
var list = listBox();
list.items.push("stale");
attempt("vkrXMLFillList", function () {
    lib.vkrXMLFillList(doc, list, "colour");
    check("vkrXMLFillList clears, then adds", list.items.join("|"), "red");
});

var tabs = {captions: []};
tabs.Clear = function () { tabs.captions = []; };
tabs.Add = function () { tabs.captions.push(arguments[arguments.length - 1]); };
var strip = {Tabs: tabs};
attempt("vkrXMLFillTabStrip", function () {
    lib.vkrXMLFillTabStrip(doc, strip, "colour");
    check("vkrXMLFillTabStrip", tabs.captions.length, 2);
});

var combo = listBox();
attempt("vkrXMLFillComboWithResList", function () {
    lib.vkrXMLFillComboWithResList(doc, combo, "colour", "(none)");
    check("vkrXMLFillComboWithResList starts with the none entry", combo.items[0], "(none)");
});

// Without a resource library the string and resource lookups answer ""; loadRes also shows its
// error in a message box, which the runner answers.
attempt("vkrRes and loadRes", function () {
    var host = {Path: lib.vkrTempDir(), EXEName: "jsclient", Major: 1, Minor: 0, Revision: 0};
    var app = lib.vkrInitApp(host, "jsclient");
    check("vkrRes", lib.vkrRes(app, 1), "");
    check("loadRes", app.loadRes(1, "XML"), "");
});

WScript.Echo(passed + " passed, " + failed + " failed");
WScript.Quit(failed);
