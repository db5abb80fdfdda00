// SPDX-License-Identifier: MIT
//
// caltofal-sandbox as a person runs it.
#include "sandbox_fixture.h"

#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <sys/wait.h>

namespace {

struct Result {
    int code;
    std::string out;
    std::string errors;
};

class ToolTest : public SandboxTest {
  protected:
    // Runs the tool by the shell; {} in `arguments` stands for the test's directory.
    Result run(const std::string &arguments) {
        const std::string errorFile = directory + "/stderr";
        std::string command = std::string(SANDBOX_TOOL) + " " + arguments + " 2>" + errorFile;
        for (size_t at = command.find("{}"); at != std::string::npos; at = command.find("{}")) {
            command.replace(at, 2, directory);
        }
        Result result{-1, {}, {}};
        FILE *pipe = popen(command.c_str(), "r");
        std::array<char, 4096> buffer{};
        for (size_t count = 0; (count = fread(buffer.data(), 1, buffer.size(), pipe)) != 0;) {
            result.out.append(buffer.data(), count);
        }
        result.code = WEXITSTATUS(pclose(pipe));
        result.errors = readFile(errorFile);
        return result;
    }

    void write(const std::string &name, const std::string &text) const {
        std::ofstream(directory + "/" + name) << text;
    }
};

TEST_F(ToolTest, CopiesAGatewayThroughEveryFormat) {
    ASSERT_EQ(cal_setValueToDb(&Message::set()->with("Device.Info", kSet, {{"Name", "a,\"b\""}}).header), 0);
    const auto message = Message::set(); // comes with tables above it, which come with templates
    message->with("Device.Net.Host.7.Address", kAdd, {});
    ASSERT_EQ(cal_setValue(&message->header), 0);
    ASSERT_EQ(cal_setValueToDb(&Message::set()->with("Device.Net.Host.7.Address.1", kDelete, {}).header), 0);
    const std::string original = run("export lab").out;
    EXPECT_NE(original.find(" [running-only]\n"), std::string::npos) << original;
    EXPECT_NE(original.find("Device.Info.Name [string(1:16) rw default=\"none\" running=\"lab\"] = a,\"b\"\n"),
              std::string::npos)
        << original;
    for (const std::string format : {"tr181", "csv", "json"}) {
        EXPECT_EQ(run("export lab --format " + format + " > {}/copy." + format).code, 0);
        EXPECT_EQ(run("import " + format + " {}/copy." + format).code, 0);
        EXPECT_EQ(run("export " + format).out, original) << format;
        EXPECT_EQ(run("diff lab " + format).code, 0);
    }
    EXPECT_EQ(run("export --format json --stored | grep -F Info.Name").out,
              "  \"Device.Info.Name\": \"a,\\\"b\\\"\",\n"
              "    \"Device.Info.Name\": \"string(1:16) rw default=\\\"none\\\"\",\n");
    const std::string json = readFile(directory + "/copy.json");
    for (const char *line :
         {"\n  \"Device.Info.UpTime\": 42,\n", "\n  \"Device.Info.Serial\": \"0001\",\n",
          "\n  \"Device.Net.Host.2.Active\": true,\n", "\n  \"Device.Info.Text\": {\"hex\":\"74776f0a"}) {
        EXPECT_NE(json.find(line), std::string::npos) << line << json;
    }
}

TEST_F(ToolTest, NamesFileAndLineOfAMistake) {
    struct Case {
        const char *file;
        const char *text;
        const char *message;
    };
    const Case cases[] = {
        {"a.tr181", "# x\nDevice.A\n", "a.tr181:2: \"Device.A\" has no value: \" = \" is missing"},
        {"a.csv", "path,value\nDevice.A.B,1\n\nDevice.Info.UpTime,x\n",
         "a.csv:4: Device.Info.UpTime: \"x\" is not of type unsignedInt"},
        {"b.csv", "path,value\nDevice.A.B,\"1\n2\"\nDevice.A.C\n", "b.csv:4: 1 field where the header has 2"},
        {"c.csv", "path,amount\n",
         "c.csv:1: column 2 of the header is none of path, value, type, access, default, running, object"},
        {"e.csv", "path,value,path\n", "e.csv:1: column 3 of the header is a second path"},
        {"f.csv", "Device.A.Password,hunter2\nDevice.A.B,1\n",
         "f.csv:1: the header line is missing: the first line has to name the columns, of path, value, type, access, "
         "default, running, object"},
        {"g.csv", "path,value,type\nDevice.A.Password,hunter,2\n", "g.csv:2: an unknown type"},
        {"d.csv", "path,value\nDevice.A.B,\"x\n", "d.csv:2: a quoted field does not end"},
    };
    const Lines before = exported();
    for (const Case &row : cases) {
        write(row.file, row.text);
        const Result result = run(std::string("import lab {}/") + row.file);
        EXPECT_EQ(result.code, 1) << row.file;
        EXPECT_EQ(result.errors, "caltofal-sandbox: " + directory + "/" + row.message + "\n");
        EXPECT_EQ(result.out, "");
    }
    EXPECT_EQ(exported(), before);
}

TEST_F(ToolTest, ImportsTables) {
    write("hosts.csv",
          "value,path,access\r\nnine,Device.Net.Host.9.Name,\r\n\"say \"\"hi\"\"\",Device.Info.Motto,rw\r\n");
    EXPECT_EQ(run("import lab {}/hosts.csv").errors, "lab: took in 2 entries\n");
    EXPECT_EQ(valueOf("Device.Net.Host.9", "Name"), "nine");
    EXPECT_EQ(valueOf("Device.Net.Host.9", "Level"), "0");
    EXPECT_EQ(setOne("Device.Info", {{"Motto", valueOf("Device.Info", "Motto") + "!"}}), 0);
    EXPECT_EQ(valueOf("Device.Info", "Motto"), "say \"hi\"!");
    EXPECT_EQ(run("import lab {}/hosts.csv --replace").code, 0);
    EXPECT_EQ(run("export lab --format json").out,
              "{\n  \"Device.Info.Motto\": \"say \\\"hi\\\"\",\n  \"Device.Net.Host.9.Name\": \"nine\",\n"
              "  \"definitions\": {\n    \"Device.Info.Motto\": \"string rw\"\n  }\n}\n");
}

TEST_F(ToolTest, ShowsDifferencesAndBoots) {
    EXPECT_EQ(run("diff lab").out, "");
    const auto message = Message::set();
    message->with("Device.Net.Host.7", kSet, {{"Name", "a \"b\""}}).with("Device.Net.Host", kAdd, {});
    message->with("Device.Net.Host.2", kDelete, {});
    ASSERT_EQ(cal_setValueToDb(&message->header), 0);
    const std::string changes = "- Device.Net.Host.2\n+ Device.Net.Host.11\n"
                                "~ Device.Net.Host.7.Name: \"seven\" -> \"a \\\"b\\\"\"\n";
    const Result different = run("diff lab");
    EXPECT_EQ(different.out, changes);
    EXPECT_EQ(different.code, 1);
    EXPECT_EQ(run("boot").out, changes);
    EXPECT_EQ(run("diff lab").code, 0);

    EXPECT_EQ(run("new other --from lab.nothing").code, 10);
    EXPECT_EQ(run("new ../other").code, 2);
    EXPECT_EQ(run("export lab | " SANDBOX_TOOL " import other -").code, 0);
    setOne("Device.Info", {{"Name", "x"}});
    cal_setValue(&Message::set()->with("Device.Net.Host.10.Address", kAdd, {{"IP", "::1"}}).header);
    EXPECT_EQ(run("diff other lab").out, "~ Device.Info.Name: \"lab\" -> \"x\"\n"
                                         "~ Device.Net.Host.10.AddressNumberOfEntries: \"0\" -> \"1\"\n"
                                         "+ Device.Net.Host.10.Address.1.IP = \"::1\"\n");
    EXPECT_NE(run("diff lab other").out.find("- Device.Net.Host.10.Address.1.IP = \"::1\"\n"), std::string::npos);
}

TEST_F(ToolTest, HidesSecretsOnTheScreen) {
    write("keys.tr181", "Device.Key.WEPKey [string rw] = old one\nDevice.Key.Passphrase [string rw] =\n");
    ASSERT_EQ(run("new a --from {}/keys.tr181").code, 0);
    ASSERT_EQ(run("import b {}/keys.tr181").code, 0);
    setenv("CALTOFAL_GATEWAY", "b", 1);
    ASSERT_EQ(setOne("Device.Key", {{"WEPKey", "new one"}}), 0);
    ASSERT_EQ(cal_setValueToDb(&Message::set()->with("Device.Key", kSet, {{"Passphrase", "dear"}}).header), 0);
    const struct {
        const char *command, *hidden, *shown;
    } cases[] = {
        {"diff a b", "~ Device.Key.WEPKey: (hidden) -> (hidden)\n",
         "~ Device.Key.WEPKey: \"old one\" -> \"new one\"\n"},
        {"diff a lab | grep Key.", "- Device.Key.Passphrase = \"\"\n- Device.Key.WEPKey = (hidden)\n",
         "- Device.Key.Passphrase = \"\"\n- Device.Key.WEPKey = \"old one\"\n"},
        {"diff b", "~ Device.Key.Passphrase: \"\" -> (hidden)\n", "~ Device.Key.Passphrase: \"\" -> \"dear\"\n"},
        {"boot b", "~ Device.Key.Passphrase: \"\" -> (hidden)\n", ""},
    };
    for (const auto &[command, hidden, shown] : cases) {
        std::string option = command;
        option.insert(option.find(' '), " --show-secrets");
        EXPECT_EQ(option.starts_with("boot") ? "" : run(option).out, shown);
        EXPECT_EQ(run(command).out, hidden);
    }
    write("wrong.tr181", "Device.Key.WEPKey [string rw] very dear\n");
    EXPECT_EQ(run("import a {}/wrong.tr181").errors,
              "caltofal-sandbox: " + directory + "/wrong.tr181:1: expected \" = \" behind Device.Key.WEPKey\n");
}

TEST_F(ToolTest, HidesSecretsOfTheConsole) {
    ASSERT_EQ(system(("mkdir -p " + directory + "/lab.box/log").c_str()), 0);
    const std::string lines = "  write:84 ==> <1> Device.A.1.KeyPassphrase=>two words\n"
                              "[Device.A.1.WEPKey=>x]\n[Device.A.1.Channel=>6]\nKeyPassphrase=>\n";
    write("lab.box/log/console", lines);
    EXPECT_EQ(run("console").out, "  write:84 ==> <1> Device.A.1.KeyPassphrase=>(hidden)\n"
                                  "[Device.A.1.WEPKey=>(hidden)]\n[Device.A.1.Channel=>6]\nKeyPassphrase=>\n");
    EXPECT_EQ(run("console --show-secrets").out, lines);
    EXPECT_EQ(run("console -f | head -n 2 | tail -n 1").out, "[Device.A.1.WEPKey=>(hidden)]\n");
}

TEST_F(ToolTest, KeepsGateways) {
    EXPECT_EQ(run("new bench --from home").code, 0);
    EXPECT_EQ(run("new bench").code, 1);
    EXPECT_EQ(run("-g bench path").out, directory + "/bench.db\n");
    const std::string list = run("list").out;
    EXPECT_NE(list.find("\n  home      demo, made on first use\n"), std::string::npos) << list;
    EXPECT_NE(list.find("\n* lab  "), std::string::npos) << list;
    EXPECT_NE(run("list --json").out.find("\"name\": \"lab\",\n    \"exists\": true,\n    \"demo\": false"),
              std::string::npos);
    EXPECT_NE(run("-g bench export Device.Hosts.Host.1 | grep -c Address").out, "0\n");
    setOne("Device.Info", {{"Name", "changed"}});
    EXPECT_EQ(run("new copy --from lab").code, 0);
    EXPECT_EQ(run("diff lab copy").out, "");
    EXPECT_EQ(run("new more --from nosuch").errors, "caltofal-sandbox: nosuch is neither a gateway nor a file\n");
    for (const char *arguments :
         {"remove 'Key=hun\"ter2'", "diff lab 'Key=hunter\t2'", "import new Key=hunter2", "new x --from=Key=hunter2",
          "-gKey=hunter2 boot", "fault add any --code Key=hunter2"}) {
        const std::string errors = run(arguments).errors;
        EXPECT_NE(errors.find("Key=..."), std::string::npos) << errors;
        EXPECT_EQ(errors.find("hun"), std::string::npos) << errors;
    }
    EXPECT_EQ(run("console -g nosuch").code, 10);
    EXPECT_EQ(run("-g nosuch fault add any").code, 10);
    EXPECT_EQ(run("fault add Device.Nope.").code, 10);
    EXPECT_EQ(run("fault list").out, "");
    EXPECT_EQ(run("list").out.find("nosuch"), std::string::npos);
    for (const char *name : {"..", ".hidden", "-- -y"}) { // gateways of older versions may have such a name
        EXPECT_NE(run("new " + std::string(name)).errors.find("is not a gateway name: it begins with"),
                  std::string::npos);
    }
    std::filesystem::copy_file(directory + "/copy.db", directory + "/.hidden.db");
    EXPECT_EQ(run("diff copy .hidden").code, 0);
    EXPECT_NE(run("list").out.find("  .hidden "), std::string::npos);
    EXPECT_EQ(run("remove .hidden").code, 0);
    for (const char *command : {"export hom", "remove hom", "diff lab hom", "new more --from hom"}) {
        EXPECT_NE(run(command).errors.find(" (did you mean home?)\n"), std::string::npos) << command;
    }
    EXPECT_EQ(run("remove bench").code, 0);
    EXPECT_EQ(run("remove bench").code, 10);
    EXPECT_EQ(run("export bench").code, 10);
    EXPECT_EQ(run("export lab Device.Nope.").code, 10);
}

TEST_F(ToolTest, OrdersFaults) {
    EXPECT_EQ(run("fault add Device.Info. --code no-match --nth 2 --on get").out,
              "1: Device.Info, get, request 2 from now: -208 no-match\n");
    EXPECT_EQ(valueOf("Device.Info", "Name"), "lab");
    EXPECT_EQ(run("fault list").out, "1: Device.Info, get, request 1 from now: -208 no-match\n");
    EXPECT_EQ(valueOf("Device.Info", "Name"), "?-208");
    EXPECT_EQ(run("fault list --json").out, "[]\n");
    EXPECT_EQ(run("fault add any --late 5").out, "1: any object, get and set, every request: late by 5 ms\n");
    EXPECT_EQ(run("fault clear 7").code, 10);
    EXPECT_EQ(run("fault clear 1").code, 0);
    EXPECT_EQ(run("fault list").out, "");
}

TEST_F(ToolTest, TellsWrongUseApart) {
    struct Case {
        const char *arguments;
        const char *fault; // as the tool words it
    };
    const Case cases[] = {
        {"", "which command?; see caltofal-sandbox --help"},
        {"nosuch", "\"nosuch\" is not a command; see caltofal-sandbox --help"},
        {"fault", "fault: which command?; see caltofal-sandbox fault --help"},
        {"Password=hunter2", "\"Password...\" is not a command; see caltofal-sandbox --help"},
        {"fault nosuch", "fault: \"nosuch\" is not a command; see caltofal-sandbox fault --help"},
        {"fault add", "fault add: OBJECT is missing; see caltofal-sandbox fault add --help"},
        {"fault add any --code 5", "5 is neither a negative number nor the name of a code"},
        {"fault add any --nth 0",
         "fault add: --nth \"0\" is not a number from 1 to 1000000000; see caltofal-sandbox fault add --help"},
        {"fault add any --on", "fault add: --on needs a value; see caltofal-sandbox fault add --help"},
        {"lst", "\"lst\" is not a command (did you mean list?); see caltofal-sandbox --help"},
        {"fault add 1.2", "1.2 is not an object path"},
        {"export --format xml",
         "export: --format \"xml\" is not one of tr181, csv, json; see caltofal-sandbox export --help"},
        {"import lab", "import: FILE is missing; see caltofal-sandbox import --help"},
        {"import '' {}/x --replace", "import: NAME is empty; see caltofal-sandbox import --help"},
        {"remove ''", "remove: NAME is empty; see caltofal-sandbox remove --help"},
        {"-g '' list", "list: --gateway is empty; see caltofal-sandbox list --help"},
        {"-g a -g b list", "list: --gateway is given twice; see caltofal-sandbox list --help"},
        {"list --nope", "list: \"--nope\" is not an option; see caltofal-sandbox list --help"},
        {"list more", "list: \"more\" is one word too many; see caltofal-sandbox list --help"},
        {"help nosuch", "help: \"nosuch\" is not a command; see caltofal-sandbox --help"},
    };
    for (const Case &row : cases) {
        const Result result = run(row.arguments);
        EXPECT_EQ(result.code, 2) << row.arguments;
        EXPECT_EQ(result.errors, "caltofal-sandbox: " + std::string(row.fault) + "\n");
        EXPECT_EQ(result.out, "");
    }
    for (const char *arguments : {"--help", "--version", "-V", "help fault"}) {
        EXPECT_EQ(run(arguments).code, 0) << arguments;
    }
    EXPECT_EQ(run("help fault add").out, run("fault add --help").out);
    EXPECT_EQ(run("help").out, run("--help").out);
    EXPECT_EQ(run("export > /dev/full").code, 1) << "an output that is lost is no success";
}

} // namespace
