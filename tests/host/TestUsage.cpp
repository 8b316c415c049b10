// What both programs say of themselves and what they refuse.
#include <map>
#include <set>

#include "host/Program.h"

namespace rux::test {

TEST(Usage, HelpTellsEveryOptionAndEveryOptionIsKnown) {
    const std::map<std::string, std::set<std::string>> programs = {
        {"rux-host",
         {"--sample", "--show", "--modal", "--listen", "--port-file", "--work-dir", "--codepage", "--classes",
          "--journal", "--dump", "--help"}},
        {"ruxcall", {"--port", "--port-file", "--address", "--timeout", "-f", "--help"}}};
    for (const auto& [program, options] : programs) {
        const std::string help = OutcomeOf({program, "--help"});
        EXPECT_TRUE(help.starts_with("usage: " + program + " ") && help.ends_with("\n= 0")) << help;
        std::set<std::string> told;
        for (std::size_t at = help.find("\n  -"); at != help.npos; at = help.find("\n  -", at + 1))
            told.insert(help.substr(at + 3, help.find(' ', at + 3) - at - 3));
        EXPECT_EQ(options, told);
        for (const std::string& option : options)
            EXPECT_EQ(OutcomeOf({program, option}).find("unknown option"), std::string::npos) << option;
    }
}

TEST(Usage, WhatIsRefused) {
    const TTempFolder folder;
    const std::string here = folder.Path("");
    const std::string good = folder.File("good", "object Good: TGood Caption = 'x' end");
    const auto host = [&](const TArgs& args) { return TArgs{"rux-host", "--work-dir", here, good} + args; };
    const auto call = [&](const TArgs& args) { return TArgs{"ruxcall", "x$Find"} + args; };
    const std::string hint = "rux-host --help tells more\n", callHint = "ruxcall --help tells more\n";
    const std::string port = ", expected a port from 1 to 65535\n" + callHint;
    const struct {
        TArgs Args;
        std::string Answer;  // with @ for the folder
    } rows[] = {
        // Among good ones, which do not run either.
        {host({folder.File("1", "\xEF\xBB\xBFobject F: TF\n  Caption = 'abc\nend\n"), good}),
         "@1:2: found \"'abc\", expected a quote at the end of the text, on the same line\n"},
        {{"rux-host", "--dump", here}, "@: cannot be read (Is a directory)\n"},
        {host({"no.dfm"}), "no.dfm: cannot be read (No such file or directory)\n"},
        {host({"/dev/zero"}), "/dev/zero: has more than 67108864 bytes\n"},
        {{"rux-host"}, "give either form files or --sample orders\n" + hint},
        {host({"--sample", "orders"}), "give either form files or --sample orders\n" + hint},
        {{"rux-host", "--sample", "x"}, "found \"x\" behind --sample, expected orders\n" + hint},
        {host({"--port"}), "unknown option --port\n" + hint},
        {host({"--listen"}), "--listen needs a value\n" + hint},
        {host({"--listen", "localhost"}),
         "cannot listen on localhost:# (--listen takes an IPv4 address of this machine)\n"},
        {host({"--codepage", "gbk"}),
         "found \"gbk\" behind --codepage, expected a number such as 936 or 1252\n" + hint},
        {host({"--codepage", "99"}), "Unknown code page 99\n"},
        {host({"--work-dir", good}), "@good is no folder, and --work-dir names one\n" + hint},
        {host({"--modal", "X"}),
         "found \"X\" behind --show or --modal, expected a loaded form (Good)\n" + hint},
        {host({"--classes", here}), "@: cannot be read (Is a directory)\n"},
        {host({"--classes", folder.File("c", "#\nTA TB\n")}),
         "@c:2: found \"TA TB\", expected CLASS=PARENT\n"},
        {host({"--journal", here}), "@: cannot be written (Is a directory)\n"},
        {host({"--port-file", here}), "@: cannot be written (Is a directory)\n"},
        {host({"--port-file", here + "x/y"}), "@x/y: cannot be written (No such file or directory)\n"},
        {{"ruxcall"}, "give either requests or a script\n" + callHint},
        {call({"-f", "s"}), "give either requests or a script\n" + callHint},
        {call({"--sample", "x"}), "unknown option --sample\n" + callHint},
        {call({"--port"}), "--port needs a value\n" + callHint},
        {call({"--port", "0"}), "found \"0\" behind --port" + port},
        {call({"--port", "65536"}), "found \"65536\" behind --port" + port},
        {call({"--port", "44x"}), "found \"44x\" behind --port" + port},
        {call({"--port-file", folder.File("p", "x")}), "found \"x\" in @p" + port},
        {call({"--port-file", here + "no"}), "@no: cannot be read (No such file or directory)\n"},
        {{"ruxcall", "-f", here}, "@: cannot be read (Is a directory)\n"},
        {call({"--address", "localhost"}),
         "found \"localhost\" as the address, expected an IPv4 address such as 127.0.0.1\n"},
        {call({"--port", "1"}), "nothing answers on 127.0.0.1:1 (Connection refused)\n"},
    };
    for (const auto& [args, answer] : rows) {
        std::string got = Masked(OutcomeOf(args), "localhost:", " ");
        for (std::size_t at = got.find(here); at != got.npos; at = got.find(here))
            got.replace(at, here.size(), "@");
        EXPECT_EQ(got, "! " + args[0] + ": " + answer + "= 2");
    }
}

}  // namespace rux::test
