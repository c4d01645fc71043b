// Every window as a screen reader walks it: each control has a name and the role of what it is.
#include <gtest/gtest.h>

#include <initguid.h>
#include <objbase.h>
#include <oleacc.h>

#include <map>
#include <set>

#include "line_load_rig.h"
#include "win32/strings.h"

namespace varno::gui {
namespace {

struct Spoken {
    std::string name;
    long role = 0;
};

Spoken spoken(const Control& control) {
    void* found = nullptr;
    if (FAILED(AccessibleObjectFromWindow(control.handle(), static_cast<DWORD>(OBJID_CLIENT), IID_IAccessible,
                                          &found)))
        return {};
    auto* const object = static_cast<IAccessible*>(found);
    VARIANT self{};
    self.vt = VT_I4;
    self.lVal = CHILDID_SELF;
    BSTR name = nullptr;
    VARIANT role{};
    object->get_accName(self, &name);
    object->get_accRole(self, &role);
    const Spoken result{name == nullptr ? "" : win32::narrow(name), role.vt == VT_I4 ? role.lVal : 0};
    SysFreeString(name);
    object->Release();
    return result;
}

void collect(const Control& window, std::vector<Control>& all) {
    for (const Control& child : window.children()) {
        if (!child.visible()) continue;
        all.push_back(child);
        collect(child, all);
    }
}

std::set<long> rolesOf(const Control& control) {
    const std::string kind = control.className();
    if (kind == "Edit") return {ROLE_SYSTEM_TEXT};
    if (kind == "ComboBox") return {ROLE_SYSTEM_COMBOBOX};
    if (kind == "ListBox") return {ROLE_SYSTEM_LIST};
    if (kind == "Static") return {ROLE_SYSTEM_STATICTEXT, ROLE_SYSTEM_GRAPHIC};
    if (kind == "msctls_updown32") return {ROLE_SYSTEM_SPINBUTTON};
    if (kind == "ToolbarWindow32") return {ROLE_SYSTEM_TOOLBAR};
    if (kind == "VarnoPicture") return {ROLE_SYSTEM_GRAPHIC};
    if (kind != "Button") return {};
    switch (control.style() & BS_TYPEMASK) {
    case BS_GROUPBOX:
        return {ROLE_SYSTEM_GROUPING};
    case BS_AUTORADIOBUTTON:
        return {ROLE_SYSTEM_RADIOBUTTON};
    case BS_AUTOCHECKBOX:
        return {ROLE_SYSTEM_CHECKBUTTON};
    default:
        return {ROLE_SYSTEM_PUSHBUTTON};
    }
}

class Accessibility : public LineLoads {
  protected:
    Accessibility() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
    ~Accessibility() override { CoUninitialize(); }

    static void expectSpoken(const Control& window,
                             std::source_location place = std::source_location::current()) {
        const ::testing::ScopedTrace trace(place.file_name(), static_cast<int>(place.line()),
                                           window.className());
        std::vector<Control> all;
        collect(window, all);
        EXPECT_FALSE(all.empty());
        std::map<std::string, int> boxes;
        for (const Control& control : all) {
            const std::string which =
                control.className() + " " + std::to_string(control.id()) + " \"" + control.text() + "\"";
            const auto [name, role] = spoken(control);
            const std::set<long> roles = rolesOf(control);
            const bool emptyLabel =
                control.className() == "Static" && control.text().empty() && role == ROLE_SYSTEM_STATICTEXT;
            if (control.className() != "MDIClient" && !emptyLabel) {
                EXPECT_NE(name, "") << which;
            }
            if (!roles.empty()) {
                EXPECT_TRUE(roles.contains(role)) << which << " is " << role;
            }
            if (role == ROLE_SYSTEM_TEXT) ++boxes[name];
        }
        for (const auto& [name, count] : boxes)
            EXPECT_EQ(count, 1) << "boxes named " << name;
    }
};

TEST_F(Accessibility, OfTheMainWindow) {
    open({{5, "10"}}, "TIOFACK.IND");
    expectSpoken(main());
    EXPECT_EQ(spoken(field(Field::spv, 2)).name, "Spännvidd (m), fack 2");
    EXPECT_EQ(spoken(field(Field::psi0)).name, "Kombinationsfaktor psi 0");
    EXPECT_EQ(spoken(loadPicture()).name, "Lastbild");
}

TEST_F(Accessibility, OfTheLineLoadEditors) {
    open({{32, "5"}});
    Editor editor = openEditor();
    expectSpoken(editor.window());
    EXPECT_EQ(spoken(editor.box(LineLoadBox::lllast, 2)).name, "Last (kN/m), linjelast 2");
    close(editor);
    editor = openFree();
    expectSpoken(editor.window());
    close(editor);
}

TEST_F(Accessibility, OfTheDialogsAndTheResult) {
    open();
    for (const int command : {idOpen, idSaveAs, idDeleteBoth}) {
        program().command(command);
        const Control dialog = program().window(command == idDeleteBoth ? "VarnoDelFile" : fileDialogClass);
        expectSpoken(dialog);
        dialog.item(idCancelButton).click();
        program().waitGone(dialog);
    }
    EXPECT_FALSE(changed());
    program().command(idShowResult);
    const Control viewer = program().window(viewerClass);
    expectSpoken(viewer);
    viewer.post(WM_COMMAND, idEditFont);
    const Control chooser = program().window(fontChooserClass);
    expectSpoken(chooser);
    chooser.item(idCancelButton).click();
    program().waitGone(chooser);
    viewer.item(idReturn).click();
    program().waitGone(viewer);
    program().command(idMoment);
    const Control diagram = program().window("VarnoMomkurva");
    expectSpoken(diagram);
    diagram.post(WM_CLOSE);
    program().waitGone(diagram);
    program().command(idImportant);
    const Control important = program().window(disclaimerClass);
    expectSpoken(important);
    important.item(idOkButton).click();
    program().waitGone(important);
    type(field(Field::rubrik), "Ändrad");
    program().command(idNew);
    const Control prompt = program().window(savePromptClass);
    expectSpoken(prompt);
    prompt.item(idNoButton).click();
    program().waitGone(prompt);
}

TEST_F(Accessibility, OfTheNoticeAndWhatDeletingAsks) {
    Scene scene;
    scene.remove("varno.ver");
    Program fresh(scene);
    expectSpoken(fresh.window(noticeClass));
    fresh.passStartUp();
    fresh.command(idDeleteBoth);
    const Control window = fresh.window("VarnoDelFile");
    window.item(idDeletionHelp).click();
    const Control help = fresh.window("VarnoHelp");
    expectSpoken(help);
    help.item(idOkButton).click();
    fresh.waitGone(help);
    window.item(idFileList).send(LB_SETSEL, TRUE, 0);
    window.item(idDelete).click();
    const Control question = fresh.window("VarnoVeri");
    expectSpoken(question);
    question.item(idCancelButton).click();
    fresh.waitGone(question);
}

} // namespace
} // namespace varno::gui
