# SPDX-License-Identifier: MIT
"""Many clients, and for long. CALTOFAL_WEB_REQUESTS: how many requests the memory is watched over (2,000)."""
import os
import subprocess
import threading
import time
import unittest

from server import SANDBOX, SANITIZED, Server, environment, has_box, memory

REQUESTS = int(os.environ.get("CALTOFAL_WEB_REQUESTS", "2000"))
PAGES = ("/wan", "/status", "/lan", "/wifi/radios", "/wifi/ssids/1", "/mode", "/objects?path=Device.WiFi.Radio.1.", "/nonsense")


class Load(unittest.TestCase):
    def test_200_clients_of_50_requests(self):
        with Server("--connections", "220", "--connections-per-address", "220") as server:
            expected = {page: server.get(page).body for page in PAGES}
            wrong = []

            def client(number):
                connection = server.connect(timeout=120)
                for turn in range(50):
                    page = PAGES[(number + turn) % len(PAGES)]
                    try:
                        answer = server.ask("GET", "/api/v1" + page, connection=connection)
                        if answer.body != expected[page]:
                            wrong.append((page, answer))
                    except OSError as error:
                        wrong.append((page, error))
                connection.close()

            clients = [threading.Thread(target=client, args=(number,)) for number in range(200)]
            for thread in clients:
                thread.start()
            for thread in clients:
                thread.join()
            self.assertEqual(wrong, [])

    def test_a_slow_gateway_keeps_nobody_waiting_who_does_not_ask_it(self):
        with Server() as server:
            server.get("/dsl")  # which is quick until now
            server.get("/dsl")
            subprocess.run([SANDBOX, "fault", "add", "Device.DSL.", "--late", "200", "--on", "get"], check=True,
                           env=environment(server.folder), capture_output=True)
            server.get("/dsl")
            start = time.monotonic()
            slow = [threading.Thread(target=server.get, args=("/dsl",)) for _ in range(8)]
            for thread in slow:
                thread.start()
            time.sleep(0.1)
            for target in ("/main.js", "/api/v1", "/api/v1/jobs", "/api/v1/jobs/1", "/api/v1/nonsense") * 4:
                begun = time.monotonic()
                server.ask("GET", target)
                self.assertLess(time.monotonic() - begun, 0.3, target)
            self.assertTrue(any(thread.is_alive() for thread in slow))
            self.assertLess(time.monotonic() - start, 2)
            for thread in slow:
                thread.join()

    def test_reading_while_others_change(self):
        """Two SSIDs are always changed together: no answer may show one without the other."""
        with Server(words=True) as server:
            stop = threading.Event()
            both = "/objects?path=Device.WiFi.SSID.1&path=Device.WiFi.SSID.2&leaf=1"
            wrong = []

            def reader():
                connection = server.connect()
                while not stop.is_set():
                    answer = server.ask("GET", "/api/v1" + both, connection=connection)
                    names = {ssid["SSID"] for ssid in answer.json.values()}
                    if len(names) != 1 or answer.status != 200:
                        wrong.append(names)
                connection.close()

            def write(text):
                body = {f"Device.WiFi.SSID.{number}.": {"SSID": text} for number in (1, 2)}
                self.assertEqual(server.patch("/objects", body).status, 200)

            write("first")
            readers = [threading.Thread(target=reader) for _ in range(4)]
            for thread in readers:
                thread.start()
            for turn in range(60):
                write(f"turn {turn}")
            stop.set()
            for thread in readers:
                thread.join()
            self.assertEqual(wrong, [])

    @unittest.skipIf(SANITIZED, "sanitizers keep what was released")
    def test_memory_stays_flat(self):
        with Server() as server:
            connection = server.connect()

            def rounds(count):
                for turn in range(count):
                    server.ask("GET", "/api/v1" + PAGES[turn % len(PAGES)], connection=connection)

            rounds(1000)
            before = memory(server.process)
            server.get("/objects?" + "path=Device.&" * 60)  # read once
            self.assertLess(memory(server.process) - before, 16384)
            before = memory(server.process)
            rounds(REQUESTS)
            self.assertLess(memory(server.process) - before, 512)
            connection.close()

    @unittest.skipUnless(has_box(), "there can be no device box here")
    def test_pages_of_the_device_take_turns(self):
        with Server(box=True, words=True) as server:
            pages = ("/wifi/stations/wlan0", "/wifi/stations/wlan2", "/wifi/channels/wlan0", "/mesh", "/wan")
            expected = {page: server.get(page).body for page in pages}
            wrong = []

            def client(page):
                for _ in range(5):
                    answer = server.get(page)
                    if answer.status != 200 or (page != "/wifi/stations/wlan0" and answer.body != expected[page]):
                        wrong.append((page, answer))

            clients = [threading.Thread(target=client, args=(page,)) for page in pages * 2]
            for thread in clients:
                thread.start()
            for thread in clients:
                thread.join()
            self.assertEqual(wrong, [])

    @unittest.skipIf(SANITIZED, "sanitizers have threads of their own")
    def test_idle_takes_no_processor_time(self):
        with Server() as server:
            held = [server.connect() for _ in range(8)]
            for connection in held:
                server.ask("GET", "/api/v1/mode", connection=connection)

            def spent():
                with open(f"/proc/{server.process.pid}/stat", encoding="ascii") as file:
                    return sum(int(word) for word in file.read().rsplit(")", 1)[1].split()[11:13])

            before = spent()
            time.sleep(3)
            self.assertLessEqual(spent() - before, 1)  # hundredths of a second
            for connection in held:
                connection.close()
