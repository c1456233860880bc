#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "census/source_tokens.h"

namespace kvopt::test {
namespace {

/// Names that the headers of Windows define as macros: used as a name of ours, the preprocessor
/// would change them for whoever includes both.
const std::set<std::string>& MacroNames() {
    static const std::set<std::string> names{
        // Functions with an A and a W form.
        "AddFontResource", "AppendMenu", "CallWindowProc", "CharLower", "CharNext", "CharPrev",
        "CharUpper", "ChooseColor", "ChooseFont", "CopyFile", "CreateAcceleratorTable",
        "CreateDialog", "CreateDialogIndirect", "CreateDialogParam", "CreateDirectory",
        "CreateEvent", "CreateFile", "CreateFileMapping", "CreateFont", "CreateFontIndirect",
        "CreateMutex", "CreateProcess", "CreatePropertySheetPage", "CreateSemaphore",
        "CreateWindow", "CreateWindowEx", "DefDlgProc", "DefWindowProc", "DeleteFile", "DialogBox",
        "DialogBoxIndirect", "DialogBoxParam", "DispatchMessage", "DrawState", "DrawText",
        "DrawTextEx", "EncryptFile", "EnumFonts", "EnumProps", "ExtractIcon", "ExtTextOut",
        "FindFirstFile", "FindNextFile", "FindResource", "FindText", "FindWindow", "FindWindowEx",
        "FormatMessage", "GetClassInfo", "GetClassLong", "GetClassName", "GetClipboardFormatName",
        "GetCommandLine", "GetComputerName", "GetCurrentDirectory", "GetDateFormat",
        "GetDiskFreeSpace", "GetDlgItemText", "GetEnvironmentVariable", "GetFileAttributes",
        "GetFileTitle", "GetFullPathName", "GetKeyNameText", "GetLocaleInfo", "GetMenuItemInfo",
        "GetMenuString", "GetMessage", "GetModuleFileName", "GetModuleHandle", "GetMonitorInfo",
        "GetNumberFormat", "GetObject", "GetOpenFileName", "GetPrivateProfileInt",
        "GetPrivateProfileSection", "GetPrivateProfileString", "GetProfileInt", "GetProfileSection",
        "GetProfileString", "GetProp", "GetSaveFileName", "GetShortPathName", "GetStartupInfo",
        "GetSystemDirectory", "GetTabbedTextExtent", "GetTempFileName", "GetTempPath",
        "GetTextExtentPoint", "GetTextExtentPoint32", "GetTextFace", "GetTextMetrics",
        "GetTimeFormat", "GetUserName", "GetVersionEx", "GetVolumeInformation", "GetWindowLong",
        "GetWindowLongPtr", "GetWindowText", "GetWindowTextLength", "GetWindowsDirectory",
        "GlobalAddAtom", "GrayString", "InsertMenu", "InsertMenuItem", "IsCharAlpha", "IsCharLower",
        "IsCharUpper", "IsDialogMessage", "LoadAccelerators", "LoadBitmap", "LoadCursor",
        "LoadIcon", "LoadImage", "LoadLibrary", "LoadMenu", "LoadString", "LogonUser",
        "MapVirtualKey", "MessageBox", "MessageBoxEx", "MessageBoxIndirect", "ModifyMenu",
        "MoveFile", "MoveFileEx", "OpenEvent", "OpenMutex", "OpenService", "OutputDebugString",
        "PageSetupDlg", "PeekMessage", "PlaySound", "PostMessage", "PostThreadMessage", "PrintDlg",
        "PropertySheet", "RegCreateKey", "RegDeleteKey", "RegDeleteValue", "RegEnumKey",
        "RegEnumValue", "RegisterClass", "RegisterClassEx", "RegisterClipboardFormat",
        "RegisterWindowMessage", "RegOpenKey", "RegQueryValue", "RegSetValue", "RemoveDirectory",
        "RemoveProp", "ReplaceFile", "ReplaceText", "ReportEvent", "SearchPath",
        "SendDlgItemMessage", "SendMessage", "SetClassLong", "SetCurrentDirectory",
        "SetDlgItemText", "SetEnvironmentVariable", "SetFileAttributes", "SetLocaleInfo",
        "SetMenuItemInfo", "SetProp", "SetWindowLong", "SetWindowLongPtr", "SetWindowText",
        "SetWindowsHookEx", "ShellExecute", "StartDoc", "StartService", "SystemParametersInfo",
        "TabbedTextOut", "TextOut", "TranslateAccelerator", "UnregisterClass", "UpdateResource",
        "VkKeyScan", "WinHelp", "WriteConsole", "WritePrivateProfileSection",
        "WritePrivateProfileString", "WriteProfileSection", "WriteProfileString", "wsprintf",
        "wvsprintf",
        // Functions that are macros on their own.
        "CopyMemory", "DeleteBrush", "DeleteFont", "DeletePen", "ExitWindows", "FillMemory",
        "GetCurrentTime", "GetFirstChild", "GetFirstSibling", "GetFreeSpace", "GetLastSibling",
        "GetNextSibling", "GetNextWindow", "GetPrevSibling", "GetStockBrush", "GetStockFont",
        "GetStockPen", "GetSysModalWindow", "IsMaximized", "IsMinimized", "IsRestored",
        "MoveMemory", "PostAppMessage", "SelectBrush", "SelectFont", "SelectPen", "SubclassWindow",
        "Yield", "YieldProcessor", "ZeroMemory", "max", "min",
        // Words.
        "ABSOLUTE", "ALTERNATE", "APIENTRY", "CALLBACK", "CONST", "CreateService", "DELETE",
        "DIFFERENCE", "DOMAIN", "ERROR", "FALSE", "FAR", "IGNORE", "IN", "INFINITE", "MAX_PATH",
        "NEAR", "NO_ERROR", "OPAQUE", "OPTIONAL", "OUT", "OVERFLOW", "PASCAL", "PASSTHROUGH",
        "PURE", "RELATIVE", "RGB", "STRICT", "THIS", "THIS_", "TRANSPARENT", "TRUE", "UNDERFLOW",
        "UNICODE", "VOID", "WINAPI", "WINDING", "cdecl", "far", "hyper", "interface", "near",
        "pascal", "small"};
    return names;
}

/// Families of constants: a prefix and capitals behind it.
bool IsMacroConstant(const std::string& word) {
    static const std::set<std::string> codes{"IDABORT",  "IDCANCEL", "IDCLOSE", "IDHELP",
                                             "IDIGNORE", "IDNO",     "IDOK",    "IDRETRY",
                                             "IDYES",    "IDTIMEOUT"};
    if (codes.count(word) != 0) {
        return true;
    }
    const std::size_t end = word.find('_');
    static const std::set<std::string> prefixes{
        "BM", "BN",  "BS",  "CB", "CBN", "CBS", "CF",  "COLOR", "CS",     "DLGC", "DM",
        "DS", "DT",  "EM",  "EN", "ES",  "GCL", "GWL", "HC",    "HT",     "IDC",  "IDI",
        "LB", "LBN", "LBS", "MB", "MF",  "MK",  "PM",  "PSN",   "PSWIZB", "SB",   "SC",
        "SM", "SS",  "STM", "SW", "SWP", "TPM", "VK",  "WA",    "WM",     "WS"};
    return end != std::string::npos && prefixes.count(word.substr(0, end)) != 0 &&
           word.find_first_of("abcdefghijklmnopqrstuvwxyz") == std::string::npos;
}

bool IsMacro(const Token& token) {
    return token.kind == Token::Kind::Word &&
           (MacroNames().count(token.text) != 0 || IsMacroConstant(token.text));
}

/// min and max are macros only in front of a bracket: a parameter may be called so.
bool IsTurned(const std::vector<Token>& tokens, std::size_t at) {
    const std::string& text = tokens[at].text;
    const bool isCall = at + 1 < tokens.size() && tokens[at + 1].text == "(";
    return IsMacro(tokens[at]) && (isCall || (text != "min" && text != "max"));
}

TEST(Headers, UseNoNameThatWindowsTurnsIntoAMacro) {
    const auto files = FilesBelow("include", {".h"});
    EXPECT_FALSE(files.empty());
    for (const auto& file : files) {
        const std::string name = ShortName(file);
        const std::vector<Token> tokens = TokensOf(ReadText(file), name);
        for (std::size_t at = 0; at < tokens.size(); ++at) {
            EXPECT_FALSE(IsTurned(tokens, at))
                << name << ":" << tokens[at].line << ": " << tokens[at].text;
        }
    }
}

TEST(Headers, OfASampleAreCaughtWithTheirMacroNames) {
    const std::vector<Token> tokens = TokensOf(
        "int GetMessage(int near, int min); enum { MB_OK, IDYES, WM_, Wm_Ok, MB }; "
        "int a = limits::max(); // small",
        "sample");
    std::vector<std::string> caught;
    for (std::size_t at = 0; at < tokens.size(); ++at) {
        if (IsTurned(tokens, at)) {
            caught.push_back(tokens[at].text);
        }
    }
    EXPECT_EQ(caught,
              (std::vector<std::string>{"GetMessage", "near", "MB_OK", "IDYES", "WM_", "max"}));
}

TEST(Headers, BeginWithTheirGuard) {
    for (const auto& file : FilesBelow("include", {".h"})) {
        EXPECT_EQ(ReadText(file).rfind("#pragma once\n", 0), 0U) << ShortName(file);
    }
}

}  // namespace
}  // namespace kvopt::test
