// One form alone in place of the whole program.
#include "headless/play.h"
#include "headless/small_forms.h"
#include "host/log.h"
#include "host/roots.h"
#include "host/window_system.h"
#include "script/script_program.h"
#include "shell/single_forms.h"
#include "support/temporary_name.h"

#include <cstdio>
#include <fstream>

namespace quendal::test {
namespace {

class LoneForm final : public Form {
  public:
    LoneForm() : Form("frm_Lone", {100, 100}) {
        but_Go.onClick = [this] { CoreLib().Windows.Unload(*this); };
    }
    void describe(FieldTable& table) const override {
        table.add("Loud", Loud);
        table.add("Left", Left);
        table.add("Share", Share);
    }

    bool Loud = false;
    std::int32_t Left = 5;
    double Share = 1;
    ctl_Button but_Go{*this, "but_Go"};
};

constexpr SingleFormField kFields[] = {
    {"Loud", takeText<LoneForm, &LoneForm::Loud>},
    {"Left", takeText<LoneForm, &LoneForm::Left>},
    {"Share", takeText<LoneForm, &LoneForm::Share>},
};
const SingleForm kForms[] = {
    {"frm_Lone", [] { return std::unique_ptr<Form>(new LoneForm); }, kFields},
};

void showLone(Form& form, const std::string& /*commandLine*/) {
    CoreLib().Windows.ShowModal(form);
}

ScriptProgram choose(const ScriptSettings& settings, std::string& fault) {
    if (!settings.form) {
        fault = "no form";
        return {};
    }
    return singleFormProgram(kForms, settings.form->name, settings.form->fields, showLone, fault);
}

class ScriptFile {
  public:
    explicit ScriptFile(const std::string& text)
        : name_(temporaryName("quendal-form", ".qs").string()) {
        std::ofstream(name_) << text;
    }
    ~ScriptFile() { std::remove(name_.c_str()); }
    const std::string& name() const { return name_; }

  private:
    std::string name_;
};

Played playLone(const std::string& text) {
    const ScriptFile file(text);
    std::ostringstream errors;
    const auto ready = readyScript(file.name(), choose, errors);
    if (!ready) {
        return {2, {}, errors.str()};
    }
    std::ostringstream out;
    const int status = playHeadless(
        ready->script, {}, [&] { ready->program("line"); }, out, errors);
    return {status, out.str(), errors.str()};
}

TEST(SingleForm, PlaysAloneWithItsFieldsAndEndsTheProgram) {
    const Played played = playLone("size 800x600\nform frm_Lone Loud true Left -7 Share 0.25\n"
                                   "start\nexpect form frm_Lone\nexpect form.Loud == true\n"
                                   "expect form.Left == -7\nexpect form.Share == 0.25\n"
                                   "click but_Go\nexpect ended");
    EXPECT_EQ(played.status, 0) << played.errors;
}

TEST(SingleForm, KeepsWhatTheScriptDoesNotSet) {
    const Played played = playLone("form frm_Lone\nstart\nexpect form.Loud == false\n"
                                   "expect form.Left == 5\nclose\nexpect ended");
    EXPECT_EQ(played.status, 0) << played.errors;
}

TEST(SingleForm, UnknownNamesAndValuesAreRefusedWithTheirLine) {
    const auto refused = [](const std::string& line, const std::string& why) {
        const Played played = playLone("# first\n" + line + "\nstart");
        EXPECT_EQ(played.status, 2) << line;
        EXPECT_NE(played.errors.find(".qs:2: "), std::string::npos) << played.errors;
        EXPECT_NE(played.errors.find(why), std::string::npos) << played.errors;
    };
    refused("form frm_Other", "no form frm_Other can be shown alone");
    refused("form frm_Lone Wide true", "the form frm_Lone has no field Wide");
    refused("form frm_Lone Loud 1", "\"1\" is no value of frm_Lone.Loud");
    refused("form frm_Lone Left 1.5", "\"1.5\" is no value of frm_Lone.Left");
    refused("form frm_Lone Left 3000000000", "is no value of frm_Lone.Left");
    refused("form frm_Lone Left \"\"", "\"\" is no value of frm_Lone.Left");
    refused("form frm_Lone Share 0,5", "\"0,5\" is no value of frm_Lone.Share");
    refused("form frm_Lone Loud", "malformed \"form\"");
    refused("form", "malformed \"form\"");
}

TEST(SingleForm, MissingFilesAndProgramsAreRefused) {
    std::ostringstream errors;
    EXPECT_FALSE(readyScript("no/such/file.qs", choose, errors));
    EXPECT_EQ(errors.str(), "no/such/file.qs:0: the file can't be read\n");
    EXPECT_EQ(playLone("start").status, 2);
    EXPECT_EQ(playLone("start\nform frm_Lone").status, 2);
}

TEST(SingleForm, TheLensIsOneOfThem) {
    std::string fault;
    const FieldTexts fields{{"ShowWater", "true"},   {"ShowAcid", "false"},
                            {"SourceLeft", "0"},     {"SourceTop", "0"},
                            {"SourceRight", "1366"}, {"SourceBottom", "768"}};
    const auto program =
        singleFormProgram(singleForms(), "frm_AppMagnify", fields, showLone, fault);
    EXPECT_TRUE(program) << fault;
    EXPECT_EQ(fault, "");
}

} // namespace
} // namespace quendal::test
