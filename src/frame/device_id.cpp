// SPDX-License-Identifier: MIT
// Finding a LAN device in the host table.
#include "caltofal.h"
#include "frame/lookup.h"
#include "frame/message.h"
#include "frame/range.h"
#include "frame/text.h"
#include "frame/trace.h"

#include <cstring>
#include <strings.h>

using namespace frame;

namespace {

constexpr size_t kCompared = 128;
constexpr size_t kHostPrefixLength = sizeof("Device.Hosts.Host.") - 1;

// The parameter that holds an identifier of this form, and how its values are compared.
struct AddressForm {
    const char *param;
    int (*compare)(const char *, const char *, size_t);
};

constexpr AddressForm kNone = {nullptr, nullptr};

AddressForm classify(const char *identifier) {
    const size_t length = strlen(identifier);
    if (length == 17 && strchr(identifier, ':')) {
        return {"PhysAddress", strncasecmp};
    }
    if (length >= 7 && length <= 15 && strchr(identifier, '.')) {
        return {"IPAddress", strncmp};
    }
    return kNone;
}

bool saysNoHosts(const ParamNode &param) {
    return sameName(param.name, "HostNumberOfEntries") && number(param.value) == 0;
}

// Looks at the host table's own object, once.
class TableObject {
  public:
    // Whether the table says that it is empty.
    bool isEmpty(ObjectNode &object) {
        if (seen_) {
            return false;
        }
        bool empty = false;
        for (const ParamNode &param : params(object)) {
            seen_ = true;
            empty = empty || saysNoHosts(param);
        }
        return empty;
    }

  private:
    bool seen_ = false;
};

int instanceNumber(const char *objectName) {
    return strlen(objectName) > kHostPrefixLength ? number(objectName + kHostPrefixLength) : 0;
}

} // namespace

int GetDeviceID(char *identifier) {
    const AddressForm form = classify(identifier);
    if (!form.param) {
        return 0;
    }
    Message message;
    if (faltocal_send_main_multi_obj(message, "Device.Hosts.", "get", "get", 0) == -1) {
        traceFailedRequest({1124});
        return 0;
    }
    TableObject table;
    for (ObjectNode &object : objects(*message)) {
        if (!strstr(object.name, "Host.")) {
            if (table.isEmpty(object)) {
                traceVola({Unit::FaltoCal, 1135}, "There is no Device.Hosts.Host entry \n");
                return 0;
            }
        } else if (!strstr(object.name, "Address")) {
            const char *address = findValue(object, form.param);
            if (address && form.compare(address, identifier, kCompared) == 0) {
                return instanceNumber(object.name);
            }
        }
    }
    traceVola({Unit::FaltoCal, 1169}, "INPUT arg sIdentifier = %s is NOT exist in Device.Hosts.Host.{i}.\n",
              identifier);
    return 0;
}
