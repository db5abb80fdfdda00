# SPDX-License-Identifier: MIT
"""What is asked of the tool, and what it must say. Expected pages stand in expected/GATEWAY/COMMAND.txt and .json."""

# Gateway -> commands that succeed.
PAGES = {
    "home": [
        "status", "mode", "gateway", "wan", "dns", "dns Device.IP.Interface.4", "ipv6", "dsl", "atm", "lan",
        "multiwan", "iptv", "host 192.168.1.13", "host 00:00:5e:00:53:20", "lower-layers Device.IP.Interface.3",
        "lower-layers Device.IP.Interface.3 --walk", "wan --if-name", "wan --ethernet", "lan --ipv6",
        "gateway --mode-section ADSL_ATM", "address 192.168.1.1", "address fe80::1", "address 02:00:5E:10:00:01",
        "find Device.X_LANTIQ_COM_NwHardware.WANConnection ConnMode ETH UciSection",
        "get Device.WiFi.Radio.1 Channel Enable Device.IP.Interface.3 Name",
        "get Device.WiFi.Radio.1.Channel", "get Device.WiFi.Radio.1 Channel --defaults",
        "get Device.Ethernet.Interface.1 --leaf",
        "get Device.Hosts.Host --where Active=false HostName IPAddress",
        "get Device.Hosts.Host --where Active=true --where InterfaceType=Ethernet --leaf",
        "wifi radios", "wifi ssids", "wifi ssid 1", "wifi radio 2", "wifi acl 1", "wifi acl 9 --mac 00:00:5e:00:53:99",
        "wifi clients 1", "wifi convert", "wifi convert standards", "wifi hex VOLA",
    ],
    "dhcp": ["wan", "dns", "dsl", "ipv6", "wifi radio 1", "wifi acl 1"],
    "static": ["wan", "status"],
    "bridge": ["mode", "wan --bridge", "lan --ipv4"],
    "atm": ["wan", "atm", "dsl", "lan", "ipv6", "dns"],
    "dual": ["status", "multiwan", "iptv", "wan", "get Device.WiFi.SSID.2 SSID", "wifi ssid 2"],
    "repeater": ["wan --bridge", "wifi radios"],
    "mesh": ["wan", "wifi radios"],
}

# The same for commands that need the device box; the notes beside the data are not compared.
BOX_PAGES = {
    "home": [
        "wifi channels wlan0", "wifi channels wlan2", "wifi channel wlan0", "wifi stations wlan2",
        "wifi stations wlan0 --mac 00:00:5e:00:53:15", "wifi endpoint wlan1", "wifi scan wlan0 --pace 20",
        "wifi survey", "mesh status",
    ],
    "dhcp": ["wifi channel wlan2", "wifi stations wlan0"],
    "repeater": ["wifi endpoint", "wifi stations wlan0"],
    "mesh": ["mesh status", "mesh ip 02:00:5e:20:00:01"],
}

# Verbs whose examples need the box.
BOX_VERBS = {"wifi channels", "wifi channel", "wifi stations", "wifi scan", "wifi survey", "wifi endpoint",
             "wifi wps", "wifi wps start", "wifi wps cancel", "wifi wps reset", "wifi clear-confs", "wifi",
             "mesh", "mesh status", "mesh sync", "mesh ip"}

# Conversion, value, whose words, result.
CONVERSIONS = [
    ("security", "WEP", "fapi", "WEP-64"), ("security", "WEP-128", "ui", "WEP"), ("bandwidth", "x", "ui", "x"),
    ("wmm", "", "ui", "(null)"), ("wmm", "(null)", "fapi", "AC_Normal"), ("protection", "", "fapi", "Disabled"),
    ("power", "51", "ui", "high"), ("power", "me", "fapi", "50"), ("power", "", "fapi", "100"),
    ("rts", "2347", "ui", "2347"), ("fragmentation", "2347", "ui", "2346"), ("beacon", "49", "ui", "100"),
    ("frequency", "70000", "ui", "0"), ("frequency", "5180", "ui", "36"), ("acl-mode", "off", "fapi", "Disabled"),
    ("acl-mode", "0", "fapi", "Deny"), ("acl-mode", "Allow", "ui", "1"), ("ssid-radio2", "0", "fapi", "9"),
    ("phy", "wlan2", "ui", "phy2"), ("boolean", "256", "fapi", "false"), ("band", "5g", "fapi", "5GHz"),
]

# Gateway, command (a list where a word holds blanks), exit code, the layer's code, what standard error says.
FAILURES = [
    ("home", "get Device.Nope", 10, -202, "Device.Nope: no such object"),
    ("home", "get Device.WiFi.Radio.1 Channel Foo", 10, -203, 'Device.WiFi.Radio.1: no parameter "Foo"'),
    ("home", "get Device.WiFi.Radio.1.Foo", 10, -202, "Device.WiFi.Radio.1.Foo: no such object"),
    ("home", "get Device.Hosts.Host --where HostName=zzz", 10, -208,
     'Device.Hosts.Host: no instance has HostName = "zzz"'),
    ("home", "get Device.Hosts.Host --where Active=true Foo", 10, None,
     "Device.Hosts.Host.Foo: no object here has that parameter"),
    ("home", "set Device.WiFi.Radio.1 Channel=abc", 5, -205,
     'Device.WiFi.Radio.1.Channel: "abc" is not of type unsignedInt(1:255)'),
    ("home", "set Device.WiFi.Radio.1.Channel=9999", 5, -206,
     'Device.WiFi.Radio.1.Channel: "9999" is outside unsignedInt(1:255)'),
    ("home", "set Device.WiFi.Radio.1 MaxBitRate=3", 5, -204, "Device.WiFi.Radio.1.MaxBitRate: read-only"),
    ("home", "set Device.WiFi.Radio.1 Channel=3 Device.WiFi.Radio.2 Channel=abc", 5, -205,
     'Device.WiFi.Radio.2.Channel: "abc" is not of type unsignedInt(1:255)'),
    ("home", "add Device.WiFi.Radio.1", 5, -207, "Device.WiFi.Radio.1: not a table, nothing can be added"),
    ("home", "del Device.WiFi.Radio.1", 5, -204, "Device.WiFi.Radio.1: the table is read-only"),
    ("home", "wan --bridge", 10, None, "the gateway is no bridge: its operation mode is 4"),
    ("home", "host 192.0.2.1", 10, None, "Device.Hosts.Host: none has the address 192.0.2.1"),
    ("home", "lower-layers Device.Nope", 10, -202, "request on Device.Nope failed: no such object"),
    ("home", "gateway --mode-section XYZ", 10, -208,
     'request on Device.X_LANTIQ_COM_NwHardware.WANConnection failed: no instance has ConnMode = "XYZ"'),
    ("home", "find Device.X_LANTIQ_COM_NwHardware.WANConnection ConnMode ETH Nope", 10, None,
     'Device.X_LANTIQ_COM_NwHardware.WANConnection: no instance whose ConnMode is "ETH" has a parameter Nope'),
    ("home", "address 192.168.1.256", 5, None, '"192.168.1.256" is neither an IPv4 nor an IPv6 nor a MAC address'),
    ("static", "dsl", 10, -202, "request on Device.DSL.Line.1. failed: no such object"),
    ("static", "atm", 10, -202, "request on Device.ATM.Link.1. failed: no such object"),
    ("nowhere", "mode", 4, -209, "request on Device.X_ZINTU_CurrentNetwork failed: there is no gateway "),
    ("nowhere", "status", 4, -209, "request on Device.X_ZINTU_CurrentNetwork failed: there is no gateway "),
    ("nowhere", "get Device.Hosts", 4, -209, "there is no gateway "),
    ("home", "", 2, None, "what to do is missing; see caltofal --help"),
    ("home", "frobnicate", 2, None, '"frobnicate" is neither a noun nor an option; see caltofal --help'),
    ("home", "mode --loud", 2, None, "mode: The following argument was not expected: --loud; see caltofal mode --help"),
    ("home", "get", 2, None, "get: OBJECT is required; see caltofal get --help"),
    ("home", "get Device.Hosts.Host --where Active", 2, None, '"Active" is not of the form NAME=VALUE'),
    ("home", "get Device.WiFi Device.IP --where A=b", 2, None, "--where goes with one object"),
    ("home", "get Device.WiFi --leaf --defaults", 2, None, "--defaults goes with neither --leaf nor --where"),
    ("home", "set Device.WiFi.Radio.1", 2, None, "Device.WiFi.Radio.1: nothing to set"),
    ("home", "set Device.WiFi.Radio.1 Channel", 2, None, '"Channel" is not of the form NAME=VALUE'),
    ("home", "set Device.WiFi.Radio.1 =6", 2, None, '"=6" names no parameter'),
    ("home", "set Channel=3", 2, None, '"Channel=3" stands before any object'),
    ("home", ["set", "Device.WiFi.SSID.1", "SSID=" + "x" * 1024], 2, None, 'value "' + "x" * 40 +
     '..." has 1024 bytes: the most is 1023'),
    ("home", ["get", "Device." + "x" * 249], 2, None, 'object path "Device.' + "x" * 33 +
     '..." has 256 bytes: the most is 255'),
    ("home", ["get", "Device.\x1b[31m"], 10, -202, None),  # its escape must not reach the terminal
    ("home", "host gateway", 2, None, '"gateway" is neither a MAC address (with colons) nor an IPv4 address'),
    ("home", "wifi", 2, None, "wifi: what to do is missing; see caltofal wifi --help"),
    ("home", "wifi frob", 2, None, 'wifi: "frob" is no verb of it; see caltofal wifi --help'),
    ("home", "wifi channels", 2, None, "wifi channels: INTERFACE is required; see caltofal wifi channels --help"),
    ("home", "wifi clients 3", 2, None, 'radio "3" is no number from 1 to 2'),
    ("home", "wifi ssid 99", 10, -202, None),
    ("home", "wifi acl 99", 10, -202, None),
    ("home", "wifi acl 1 --mac 00-00-5e-00-53-99", 2, None, '"00-00-5e-00-53-99" is no MAC address with colons'),
    ("home", "wifi set lan 1 A=b", 2, None, '"lan" is neither ssid nor radio'),
    ("home", "wifi set radio 1 Channel=1 Channel=2", 2, None, "Channel is given twice"),
    ("home", ["wifi", "set", "ssid", "1", "SSID=" + "x" * 127], 2, None,
     "SSID: the value has 127 bytes: the most is 126"),
    ("home", "wifi set radio 1 Channel=999", 5, -206,
     'request on Device.WiFi.Radio.1 failed: Device.WiFi.Radio.1.Channel: "999" is outside unsignedInt(1:255)'),
    ("home", "wifi set ssid 1 Channel=6", 10, None, 'no setting "Channel" here; there are Enable, BSSID, SSID, '),
    ("home", "wifi convert volume 3", 2, None, '"volume" is no conversion; caltofal wifi convert lists them'),
    ("home", "wifi convert rts 3x", 2, None, 'value "3x" is no number from -2147483647 to 2147483647'),
    ("home", "wifi hex abc --decode", 2, None, '"abc" is no row of pairs of hexadecimal digits'),
    # What reaches a shell is judged before there is a box.
    ("home", ["wifi", "stations", "wlan0;id"], 2, None, None), ("home", ["wifi", "channel", "$(id)"], 2, None, None),
    ("home", ["wifi", "endpoint", "../../etc"], 2, None, None),
    ("home", "wifi channels wlan0123456789ab", 2, None, None),
    ("home", ["wifi", "stations", "wlan0", "--mac", "00:00:5e:00:53:1;"], 2, None, None),
    ("home", ["wifi", "scan", "wlan0", "--ssid", "it's"], 2, None, "byte 3 of the SSID, 0x27, is a single quote: the "
     "scan request can not carry it; scan for all networks"),
    ("home", ["wifi", "scan", "wlan0", "--ssid", 'a"b'], 2, None, None),
    ("home", ["wifi", "scan", "wlan0", "--ssid", "a\\b"], 2, None, None),
    ("home", ["wifi", "scan", "wlan0", "--ssid", "a\nb"], 2, None, None),
    ("home", ["wifi", "scan", "wlan0", "--ssid", "x" * 33], 2, None, "an SSID has 32 bytes at most, this one has 33"),
    ("home", ["wifi", "scan", "wlan01234567890", "--ssid", "x" * 32], 2, None, "interface and SSID have 47 bytes "
     "together: the most that a scan request carries is 46"),
    ("home", ["mesh", "ip", "02:00:5e:20:00:01;id"], 2, None, None),
    ("nowhere", "wifi stations wlan0", 4, -209, "there is no gateway "),
    ("home", "wan --bridge --if-name", 2, None, "--bridge, --if-name and --ethernet exclude each other"),
]
