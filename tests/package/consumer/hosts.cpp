// SPDX-License-Identifier: MIT
// A host program in C++.
#include <caltofal.h>
#include <iostream>
#include <string>

int main() {
    MsgHeader message{};
    const int code =
        faltocal_send_main_multi_obj(&message, "Device.Hosts.Host.", "get", "get", 2, "HostName", "PhysAddress");
    for (ObjectNode *object = nullptr; code == 0 && (object = caltofal_nextObject(&message, object));) {
        const char *name = "";
        const char *mac = "";
        zintu_GetParamFromObjUnit(object, "HostName", &name);
        zintu_GetParamFromObjUnit(object, "PhysAddress", &mac);
        std::cout << std::string(object->name) << ' ' << mac << ' ' << name << '\n';
    }
    faltocal_finalize(&message);
    return code == 0 ? 0 : 1;
}
