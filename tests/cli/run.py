#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""run.py TOOL SANDBOX [--update | unittest arguments]: tests the tool, or writes the expected output anew. SANDBOX is
caltofal-sandbox, by which requests are made to fail."""
import json
import os
import re
import subprocess
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True

from cases import BOX_PAGES, BOX_VERBS, CONVERSIONS, FAILURES, PAGES
from expect import check_examples, check_pages, every_page, write_pages
from tool import HERE, Tool, expected_file

tool = Tool(sys.argv[1], sys.argv[2])


class Pages(unittest.TestCase):
    maxDiff = None

    def test_pages_are_as_expected(self):
        check_pages(self, tool, PAGES)

    def test_no_expected_file_is_left_over(self):
        pages = [*every_page(PAGES), *every_page(BOX_PAGES)]
        wanted = {expected_file(gateway, command, ending) for gateway, command, ending, _ in pages}
        folder = os.path.dirname(os.path.dirname(next(iter(wanted))))
        present = {os.path.join(place, name) for place, _, names in os.walk(folder) for name in names}
        self.assertEqual(present, wanted)

    def test_examples_of_the_help_work(self):
        self.assertGreater(check_examples(self, tool, lambda words: words not in BOX_VERBS, tool.folder()), 30)

    def test_conversions(self):
        for table, value, to, wanted in CONVERSIONS:
            with self.subTest(f"{table} {value} --to {to}"):
                self.assertEqual(tool.run("wifi", "convert", table, value, "--to", to).out.decode(), wanted + "\n")

    def test_every_wifi_and_mesh_name_of_the_library_is_used(self):
        symbols = subprocess.run(["nm", "-D", tool.executable], stdout=subprocess.PIPE, check=True).stdout.decode()
        with open(os.path.join(HERE, "../../src/caltofal.map"), encoding="ascii") as file:
            names = re.findall(r"^ +(\w+);", file.read(), re.M)
        names = names[names.index("ZINTU_meshgrove_check_is_enabled"):]
        self.assertGreater(len(names), 60)
        self.assertEqual([name for name in names if not re.search(rf" {name}@", symbols)], [])

    def test_escapes(self):
        for value, wanted in (("it's", r"it'\''s"), ('a"b', r'a\"b'), ("\\", "\\\\"), ("", "")):
            self.assertEqual(tool.run("wifi", "escape", value).out.decode(), wanted + "\n")


class Failures(unittest.TestCase):
    maxDiff = None

    def test_failures_name_the_culprit(self):
        for gateway, command, code, layer_code, message in FAILURES:
            words = ["-g", gateway, *(command.split() if isinstance(command, str) else command)]
            with self.subTest(" ".join(words)[:100]):
                plain = tool.run(*words)
                self.assertEqual((plain.code, plain.out), (code, b""), plain.err)
                self.assertRegex(plain.err, r"^caltofal: [^\n\x1b]+\n$")
                self.assertNotIn("hunter2", plain.err)
                if message and code == 2 and not message.endswith("--help"):
                    typed = " ".join(words[2:])
                    noun = next(noun for noun in re.findall(r"^caltofal: ([a-z-]+(?: [a-z-]+)?): ", plain.err)
                                if typed.startswith(noun))
                    message = f"{noun}: {message}; see caltofal {noun} --help"
                if message and not message.endswith(" "):
                    self.assertEqual(plain.err, f"caltofal: {message}\n")
                elif message:
                    self.assertIn(message, plain.err)

                as_json = tool.run(*words, "--json")
                self.assertEqual((as_json.code, as_json.out), (code, b""))
                error = json.loads(as_json.err)["error"]
                self.assertEqual(as_json.err.count("\n"), 1)
                self.assertEqual((error["exit"], error["code"]), (code, layer_code))
                self.assertIn("object", error)
                if message:
                    self.assertEqual(f"caltofal: {error['message']}\n", plain.err)

    def test_an_option_without_its_value_is_named(self):
        result = tool.run("get", "--where")
        self.assertEqual((result.code, result.err),
                         (2, "caltofal: get: --where needs a value (NAME=VALUE); see caltofal get --help\n"))

    def test_a_deleted_directory_is_said_in_one_line(self):
        with tempfile.TemporaryDirectory() as gone:
            result = subprocess.run(["sh", "-c", 'cd "$1" && rmdir "$1" && "$0" mesh status; s=$?; mkdir "$1"; exit $s',
                                     tool.executable, gone], env=tool.environment(None), stderr=subprocess.PIPE,
                                    check=False)
        self.assertEqual((result.returncode, result.stderr),
                         (1, b"caltofal: the current directory is no longer there: change to another one\n"))

    def test_no_box_is_said_in_one_line(self):
        for words in ("wifi stations wlan0", "mesh status"):
            plain = tool.run(*words.split(), PATH="/nowhere")
            self.assertEqual((plain.code, plain.out), (77, b""))
            self.assertRegex(plain.err, r"^caltofal-sandbox: [^\n]*bwrap is not installed[^\n]*\n$")
            as_json = tool.run(*words.split(), "--json", PATH="/nowhere")
            self.assertEqual((as_json.code, as_json.out), (77, b""))
            self.assertIn("bwrap is not installed", json.loads(as_json.err)["error"]["message"])

    def test_a_full_disk_and_a_closed_stream_are_failures(self):
        for words in ("mode", "--help", "--version", "wifi ssids --json"):
            with open("/dev/full", "wb") as full:
                result = tool.run(*words.split(), stdout=full)
            closed = subprocess.run(["sh", "-c", f'"$0" {words} >&-', tool.executable], env=tool.environment(None),
                                    stderr=subprocess.PIPE, check=False)
            self.assertEqual((result.code, closed.returncode), (1, 1), words)
            self.assertIn("standard output cannot be written", result.err)
            self.assertIn(b"standard output cannot be written", closed.stderr)


class Changes(unittest.TestCase):
    def setUp(self):
        self.folder = tool.folder()

    def run_tool(self, *words):
        return tool.run(*words, folder=self.folder)

    def value(self, path):
        return self.run_tool("get", path, "--values").out.decode()

    def everything(self):
        return self.run_tool("get", "Device.").out

    def test_several_objects_change_in_one_message(self):
        result = self.run_tool("set", "Device.WiFi.Radio.1", "AutoChannelEnable=false", "Channel=3",
                               "Device.WiFi.Radio.2.Channel=36", "--trace")
        self.assertEqual((result.code, result.out), (0, b""))
        self.assertEqual(result.err, "[request] set Device.WiFi.Radio.1, Device.WiFi.Radio.2 -> 0\n")
        self.assertEqual(self.value("Device.WiFi.Radio.1.Channel"), "3\n")
        self.assertEqual(self.value("Device.WiFi.Radio.2.Channel"), "36\n")

    def test_a_refused_set_changes_nothing(self):
        before = self.everything()
        self.assertGreater(before.count(b"\n"), 1000)
        for words in (["Device.WiFi.Radio.1", "Channel=3", "Device.WiFi.Radio.2", "Channel=abc"],
                      ["Device.WiFi.Radio.1", "Channel=3", "Foo=1"], ["Device.WiFi.Radio.1", "Channel=3", "Device.Nope",
                                                                     "A=1"]):
            with self.subTest(" ".join(words)):
                self.assertIn(self.run_tool("set", *words).code, (5, 10))
                self.assertEqual(self.everything(), before)

    def test_db_only_is_stored_and_not_in_force(self):
        self.assertEqual(self.run_tool("set", "Device.WiFi.Radio.1.Channel=11", "--db-only", "--trace").err,
                         "[request] store Device.WiFi.Radio.1 -> 0\n")
        self.assertEqual(self.value("Device.WiFi.Radio.1.Channel"), "6\n")

    def test_values_travel_unchanged(self):
        for value in ("a b", "a=b", "", "\u00fc\u20ac", "'\"$`\\", "Device.WiFi."):
            with self.subTest(value):
                self.assertEqual(self.run_tool("set", "Device.WiFi.SSID.1", "SSID=" + value).code, 0)
                self.assertEqual(self.value("Device.WiFi.SSID.1.SSID"), value + "\n")

    def test_added_instances_are_named_and_deleted(self):
        table = "Device.DHCPv4.Server.Pool.1.StaticAddress"
        before = self.everything()
        added = json.loads(self.run_tool("add", table, "Yiaddr=192.168.1.50", "--json").out)["added"][0]
        self.assertTrue(added["object"].startswith(table + "."))
        self.assertEqual(self.value(added["object"] + ".Yiaddr"), "192.168.1.50\n")
        self.assertEqual(self.run_tool("del", added["object"]).code, 0)
        self.assertEqual(self.everything(), before)

    def test_json_keeps_digits_that_are_text(self):
        self.assertEqual(self.run_tool("set", "Device.WiFi.SSID.1.SSID=12345678").code, 0)
        answer = json.loads(self.run_tool("get", "Device.WiFi.SSID.1", "SSID", "--json").out)
        self.assertEqual(answer, {"Device.WiFi.SSID.1": {"SSID": "12345678"}})


class WifiChanges(unittest.TestCase):
    """`wifi set`: a snapshot, a comparison, one message with what differs."""

    def setUp(self):
        self.folder = tool.folder()

    def set(self, *words):
        result = tool.run("wifi", "set", *words, "--json", "--trace", folder=self.folder)
        self.assertEqual(result.code, 0, result.err)
        answer = json.loads(result.out)
        changes = {change["parameter"]: (change["from"], change["to"]) for change in answer["changes"]}
        written = re.findall(r"^\[request\] (set|store) (.+) -> 0$", result.err, re.M)
        self.assertEqual(answer["written"], bool(written))
        return changes, written, result.err

    def test_only_what_differs_is_written(self):
        changes, written, _ = self.set("ssid", "1", "SSID=attic", "IsolationEnable=false", "ModeEnabled=WPA2-Personal",
                                       "SSIDAdvertisementEnabled=false")
        self.assertEqual(changes, {"SSID": ("VOLA Home", "attic"), "SSIDAdvertisementEnabled": (True, False)})
        self.assertEqual(written, [("set", "Device.WiFi.SSID.1, Device.WiFi.AccessPoint.1")])
        self.assertEqual(self.set("ssid", "1", "SSID=attic")[:2], ({}, []))
        self.assertEqual(self.set("ssid", "1", "AccessPoint.1.IsolationEnable=0", "Device.WiFi.SSID.1.Enable=True",
                                  "RekeyingInterval=+01800")[:2], ({}, []))
        self.assertEqual(self.set("ssid", "1", "SSID=attic", "--force")[:2],
                         ({"SSID": ("attic", "attic")}, [("set", "Device.WiFi.SSID.1")]))

    def test_a_dry_run_and_a_stored_value_are_not_in_force(self):
        changes, written, _ = self.set("radio", "1", "--ui", "OperatingChannelBandwidth=40", "TransmitPower=low",
                                       "--dry-run")
        self.assertEqual(changes, {"OperatingChannelBandwidth": ("20MHz", "40MHz"), "TransmitPower": (100, 25)})
        self.assertEqual(written, [])
        self.assertEqual(self.set("radio", "1", "Channel=11", "--db-only")[1], [("store", "Device.WiFi.Radio.1")])
        self.assertEqual(self.set("radio", "1", "Channel=06", "--db-only")[:2],
                         ({"Channel": (6, 6)}, [("store", "Device.WiFi.Radio.1")]), "takes the stored 11 back")
        changes, _, notes = self.set("radio", "1", "Channel=11", "--dry-run")
        self.assertEqual(changes, {"Channel": (6, 11)})
        self.assertIn("AutoChannelEnable is true", notes)
        self.assertNotIn("AutoChannelEnable is true",
                         self.set("radio", "1", "Channel=11", "AutoChannelEnable=false", "--dry-run")[2])

    def test_an_ssid_may_be_any_bytes(self):
        for ssid in (b"a'b\"c\\d$e`f", b"a\nb\x1b[31m", bytes(range(0xE0, 0x100)), "Gr\u00fc\u00dfe \u2602".encode(),
                     b"x" * 32, "\u202e\u009b\u2068".encode()):
            with self.subTest(ssid):
                self.assertEqual(tool.run("wifi", "set", "ssid", "1", b"SSID=" + ssid, folder=self.folder).code, 0)
                shown = tool.run("wifi", "ssid", "1", folder=self.folder).out
                line = next(line for line in shown.split(b"\n") if line.startswith(b"SSID.1.SSID "))
                self.assertNotRegex(shown, rb"[\x00-\x09\x0b-\x1f]|\xe2\x80[\x8b-\x8f\xaa-\xae]|\xc2[\x80-\x9f]")
                found = json.loads(tool.run("wifi", "ssid", "1", "--json", folder=self.folder).out)
                settings = found["settings"]["Device.WiFi.SSID.1"]
                try:
                    self.assertEqual((settings["SSID"], settings.get("SSID_hex")), (ssid.decode(), None))
                except UnicodeDecodeError:
                    self.assertEqual(settings["SSID_hex"], ssid.hex())
                    self.assertIn(rb"\xe0\xe1", line)

    def test_wide_letters_and_accents_keep_columns_aligned(self):
        tool.run("wifi", "set", "ssid", "1", "SSID=\u55ab\u8336\u5e97 e\u0301", folder=self.folder)
        lines = tool.run("wifi", "ssids", folder=self.folder).out.decode().splitlines()
        self.assertEqual(lines[1].index("02:00") + 3 - 1, lines[2].index("02:00"), "three take two columns, one none")


# As stored and as shown: a password goes on to the last "@", and what may as well be one is hidden.
URLS = (
    ("ftp://me:SEC@c", "ftp://me:(hidden)@c"),
    ("http://me:SEC x@h/", "http://me:(hidden)@h/"),
    ("http://me:SEC/x@h/", "http://me:(hidden)@h/"),
    ("http://me:SEC#x@h/?y", "http://me:(hidden)@h/?y"),
    ("http://me:80?x@h/", "http://me:(hidden)@h/"),
    ("http://me@x.org:SEC@@h/", "http://me@x.org:(hidden)@h/"),
    ("//me:SEC@h", "//me:(hidden)@h"),
    ("sip:me:SEC@h", "sip:me:(hidden)@h"),
    ("<SIPS:me:SEC@h>", "<SIPS:me:(hidden)@h>"),
    ("http://b.c:80/x,ftp://me:SEC@c", "http://b.c:80/x,ftp://me:(hidden)@c"),
    ("http://[2001:db8::1]:80/x@y", "http://[2001:db8::1]:80/x@y"),
    ("http://b.c:80/x@y", "http://b.c:80/x@y"),
    ("http://b/x:z@y", "http://b/x:z@y"),
    ("sip:me@h:5060;x=z@y", "sip:me@h:5060;x=z@y"),
    ("a//b:c@d 12:30 z@y", "a//b:c@d 12:30 z@y"),
)


class Secrets(unittest.TestCase):
    def setUp(self):
        self.folder = tool.folder()

    def run_tool(self, *words):
        return tool.run(*words, folder=self.folder)

    def test_the_tool_and_the_sandbox_hide_the_same(self):
        """One shows values, the other quotes filters; arrows keep them from sharing the list of names."""
        secret = ("Password2 AdminPassword1 KeyPassphrase2 PassWd2 PreSharedKey1 PrivateKey1 Secret1 PSKValue WEPKey1 "
                  "WEPKey64 WPAKey SharedKey RadiusKey APIKey X_ACME_Key Key1 Pass1 AdminPass AdminPW ReadCommunity "
                  "WPAPSKText WebPwd UserPIN AuthToken KeyValue wpa_psk X_Credentials WPAPassphrase_1").split()
        harmless = ("Channel Key KeyIndex WEPKeyIndex KeyTable KeyUpdateInterval ParameterKey CommandKey SSHPublicKey "
                    "PublicCredential Passphrases PassthroughEnable Bypass Upskill TokenCount PasswordRequired").split()
        path = os.path.join(self.folder, "names.tr181")
        with open(path, "w", encoding="ascii") as file:
            file.writelines(f"Device.X_Test.{name} [string rw] = open sesame\n" for name in secret + harmless)
            file.writelines(f"Device.X_Test.Url{i}x [string rw] = {url}\n" for i, (url, _) in enumerate(URLS))
        tool.sandbox("import", "names", path, folder=self.folder)
        shown = self.run_tool("-g", "names", "get", "Device.X_Test").out.decode()
        captured = self.run_tool("-g", "names", "capture", "Device.X_Test.").out.decode()
        for name in secret + harmless:
            hides = name in secret
            reason = self.run_tool("-g", "names", "get", "Device.X_Test", "--where", f"{name}=guess").err
            self.assertEqual(("(hidden)" in reason, "guess" in reason), (hides, not hides), name)
            self.assertRegex(shown, rf"\.{name} +{re.escape('(hidden)' if hides else 'open sesame')}\n")
            self.assertRegex(captured, rf"\.{name} .*= {re.escape('(hidden)' if hides else 'open sesame')}\n")
        tool.sandbox("import", "plain", path, folder=self.folder)
        self.run_tool("-g", "plain", "set", "Device.X_Test", *(f"Url{i}x=" for i in range(len(URLS))))
        differing = subprocess.run([tool.sandbox_executable, "diff", "names", "plain"], stdout=subprocess.PIPE,
                                   env=tool.environment(self.folder), check=False).stdout.decode()  # they differ: 1
        for i, (url, hidden) in enumerate(URLS):
            for text in (shown, captured, differing):
                self.assertRegex(text, rf'\.Url{i}x\b[^\n]*[ "]{re.escape(hidden)}["\n]')
            again = self.run_tool("-g", "names", "set", "Device.X_Test", f"Url{i}x={hidden}")
            self.assertEqual(again.code, 0 if url == hidden else 2, f"{url}: what was hidden is not written")

    def test_a_trace_hides_them(self):
        words = ("wifi", "set", "ssid", "1", "KeyPassphrase=correct-horse", "--trace")
        hidden, asked = self.run_tool(*words), self.run_tool(*words, "--force", "--show-secrets")
        self.assertRegex(hidden.err, r"KeyPassphrase=>\(hidden\)\]\n")
        self.assertNotIn("correct-horse", hidden.err)
        self.assertIn("KeyPassphrase=>correct-horse]\n", asked.err)
        for words in (("get", "Device.PPP.Interface", "--where", "Password=correct-horse"),
                      ("find", "Device.PPP.Interface", "Password", "correct-horse", "Name")):
            for form in ("--trace", "--json"):
                self.assertNotIn("correct-horse", self.run_tool(*words, form).err)

    def test_a_default_of_one_is_one(self):
        for option in ("--types", "--defaults"):
            words = ("get", "Device.WiFi.AccessPoint.1.Security", "KeyPassphrase", option)
            self.assertIn(b"(hidden)\n", self.run_tool(*words).out)
            self.assertIn(b"vola-factory-key", self.run_tool(*words, "--show-secrets").out)

    def test_what_stands_in_their_place_is_not_written(self):
        table = "Device.DHCPv4.Server.Pool.1.StaticAddress"
        for words in (("set", "Device.PPP.Interface.1", "Password=(hidden)"), ("add", table, "XPassword=(hidden)"),
                      ("wifi", "set", "ssid", "1", "KeyPassphrase=(hidden)")):
            result = self.run_tool(*words)
            self.assertEqual(result.code, 2)
            self.assertIn("stands in place of a secret", result.err)


class Words(unittest.TestCase):
    def test_the_library_is_silent_without_trace(self):
        result = tool.run("-g", "static", "dsl")
        self.assertEqual(result.err.count("\n"), 1)

    def test_trace_shows_requests_and_the_librarys_lines_in_order(self):
        result = tool.run("-g", "static", "dsl", "--trace")
        lines = result.err.splitlines()
        self.assertEqual(lines[:2], ["[request] get Device.DSL.Line.1 -> -202 (Device.DSL.Line.1: no such object)",
                                     "[stderr] Get test failure"])
        self.assertRegex(lines[2], r"^\[console\] \[ZintuGet_LineInfo : \d+\] \(-1\)faltocal_SendMultiObj is Failure")
        self.assertEqual(lines[3], lines[0], "once more, for what else there is")
        self.assertIn("[request] get Device.DSL.Channel.1 -> -202 (Device.DSL.Channel.1: no such object)", lines)
        self.assertEqual(lines[-1], "caltofal: request on Device.DSL.Line.1 failed: no such object")

    def test_colour_is_for_terminals_only(self):
        self.assertIn(b"\x1b[", tool.on_terminal("status"))
        self.assertNotIn(b"\x1b[", tool.on_terminal("status", NO_COLOR="1"))
        self.assertNotIn(b"\x1b[", tool.on_terminal("status", TERM="dumb"))
        self.assertNotIn(b"\x1b[", tool.run("status").out)

    def test_short_forms_mean_the_long_ones(self):
        for short, whole in (("-j hosts", "hosts --json"), ("gat --mode", "gateway --mode-section"), ("-V", "--version"),
                             ("wifi con -j", "wifi convert --json"), ("help wifi acl", "wifi acl --help"),
                             ("help", "--help"), ("-g home help mode", "mode --help"), ("wifi help acl", "wifi acl --help"), ("lo Device.IP.Interface.3", "lower-layers Device.IP.Interface.3"),
                             ("-g bridge mo", "mode -g bridge"), ("mul", "multiwan"), ("m", "m")):
            with self.subTest(short):
                # "--mode" is not an option: only words are completed
                first, second = (tool.run(*words.split()) for words in (short.replace("--mode", "--mode-section"), whole))
                self.assertEqual((first.code, first.out), (second.code, second.out), first.err)

    def test_columns_and_cells_for_scripts(self):
        self.assertEqual(tool.run("hosts", "--columns", "name,addr", "--terse").out.splitlines()[0],
                         b"study-laptop\t192.168.1.10")
        self.assertEqual(tool.run("hosts", "--columns", "Mac").out.splitlines()[0], b"MAC")
        for words, line in (("wan", "ppp.interface\tDevice.PPP.Interface.1"), ("status", "wan.ip_address\t203.0.113.45"),
                            ("status", "multiwan.enabled\tno"), ("wifi radios", "1\twlan0\t2.4g\tUp\t6\t20\t"
                                                                   "802.11b+g+n\t3\tyes"),
                            ("wifi acl 1", "mode\tDeny\nentry.1.index\t1"), ("dsl", "modes\tG.dmt,ADSL,ADSL2,ADSL2+,VDSL2"),
                            ("wifi acl 1 --mac 00:00:5e:00:53:99", "admitted\tyes")):
            self.assertIn(line + "\n", tool.run(*words.split(), "--terse").out.decode())
        self.assertEqual(tool.run("wifi", "convert", "bandwidth", "--columns", "Ui").out.splitlines()[0], b"UI")
        for words, message in (("hosts --columns name,nope", '"nope" is not a column; there are HOST, NAME, ADDRESS, MAC,'),
                               ("mode --columns name", "has no columns"), ("mode --json --terse", "--json goes with"),
                               ("wifi ssids --columns n", '"n" is the beginning of several columns')):
            self.assertIn(message, tool.run(*words.split()).err)

    def test_tables_fold_at_the_terminals_width(self):
        for words, columns, wanted in (("wifi ssids", 60, "VOLA Home"), ("wifi acl 1", 40, "\n  neighbour-tablet"),
                                       ("wifi set radio 1 BeaconPeriod=99 --dry-run", 40, "100\n  ->  99")):
            text = tool.on_terminal(*words.split(), NO_COLOR="1", columns=columns).decode().replace("\r", "")
            self.assertLessEqual(max(len(line) for line in text.splitlines()), columns)
            self.assertIn(wanted, text)
        for page in ("hosts", "wifi ssids"):
            lines = tool.on_terminal(*page.split(), NO_COLOR="1", columns=80).decode().splitlines()
            self.assertEqual([line for line in lines if line.startswith(" ") or len(line) > 80], [], page)
        for page, wanted in (("radio", r"\nAccessPoint\.1\n  WMMEnable .*\n.*\n  X_ZINTU_WMMOption +AC_Gaming +gaming\n"),
                             ("ssid", r"\nAccessPoint\.1\.Security\n  ModeEnabled +WPA2-Personal +WPA2-PSK\n")):
            lines = tool.on_terminal("wifi", page, "1", NO_COLOR="1", columns=80).decode().splitlines()
            self.assertLessEqual(max(map(len, lines)), 80)
            self.assertRegex("\n".join(lines), wanted)
        lines = tool.on_terminal("get", "Device.WiFi.AccessPoint.1.Security", "--types", NO_COLOR="1",
                                 columns=80).decode().splitlines()
        self.assertLessEqual(max(map(len, lines)), 80)
        self.assertTrue([line for line in lines if line.startswith("    ") and "WPA3-Personal-Transition" in line])
        lines = tool.on_terminal("wifi", "ssid", "1", NO_COLOR="1", columns=80).decode().splitlines()
        self.assertNotIn("", [line.strip() for line in lines], "an empty cell needs no line of its own")

    def test_common_options_stand_anywhere(self):
        self.assertEqual(tool.run("mode", "-g", "bridge", "--json").out, tool.run("--json", "-g", "bridge", "mode").out)
        self.assertRegex(tool.run("--version").out.decode(), r"^caltofal \d+\.\d+\.\d+\n$")


if __name__ == "__main__":
    if sys.argv[3:] == ["--update"]:
        write_pages(tool, PAGES)
    else:
        unittest.main(argv=[sys.argv[0], *sys.argv[3:]])
