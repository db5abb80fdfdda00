// SPDX-License-Identifier: MIT
/**
 * @file
 * Reads and changes a residential gateway's TR-181 configuration.
 *
 * Conventions, valid for every declaration unless its comment says otherwise:
 *
 *  1. Text is NUL-terminated bytes. Buffer widths are given in bytes and include the terminator. A width in
 *     a comment is the room that the caller REQUIRES to provide.
 *  2. Records and buffers belong to the caller for the whole call. Nothing that a function returns by pointer
 *     is to be freed, except SiteSurveyList.entries and the header of faltocal_createMessage(). Texts that
 *     converters return are the caller's own text or constants.
 *  3. Records are zero-filled by the caller before a call: several fields are copied without a terminator.
 *     A field whose parameter is absent from the answer keeps what it held. This holds for a layer that
 *     leaves out what an object lacks. A layer that refuses a request for an absent parameter fails the
 *     whole request of a function that asks by name (such as ZintuGet_LANv4Info(), zintu_GetWanIfName(), the
 *     Wi-Fi snapshots and counts, the endpoint): no field of that request is filled.
 *  4. Pointers are REQUIRED to be non-null where the comment does not give a result for null.
 *  5. Results: the network getters answer 0 for success and a negative code for failure: -1, or the
 *     configuration layer's own code (see CaltofalLayerCode). Wi-Fi requests and GetCurrentChannel() answer 1
 *     for success and 0 for failure. List getters answer their entry count.
 *  6. Most failures are also traced on "/dev/console", and some calls that succeed. A refused message is a line on
 *     standard error too. A request function that does not know a keyword answers -1 and says nothing, except
 *     faltocal_send_main_multi_obj() and its _No_variable form, which trace it. The message builders log a missing
 *     name, wrong list flags and lack of memory to syslog (unfaltocalLogType). GetSiteSurveyList() prints the lines
 *     that it refuses on the process's standard output.
 *  7. Threads: every function may be called from several threads at once, each with its own records and
 *     messages. The library keeps no state but capi_mutex and the two log settings, and holds capi_mutex
 *     around each single call into the configuration layer only. Functions that leave a work file
 *     say so: calls that share a file must not run at the same time, in one process or in several.
 *  8. Commands and paths that a function puts together from a caller's text are cut at a width that its comment
 *     gives, and then used as they are.
 */
#ifndef CALTOFAL_H
#define CALTOFAL_H

#include <pthread.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** @{ */
/** Version of the library that this header belongs to. The library keeps its name, libcaltofal.so.1, as long as the
 * first number stays. */
#define CALTOFAL_VERSION_MAJOR 1
#define CALTOFAL_VERSION_MINOR 0
#define CALTOFAL_VERSION_PATCH 0
/** @} */

/** Has compilers check the arguments of a function against its format. */
#if defined(__GNUC__)
#pragma GCC visibility push(default)
#define CALTOFAL_PRINTF(format_index, first_argument) __attribute__((format(printf, format_index, first_argument)))
#else
#define CALTOFAL_PRINTF(format_index, first_argument)
#endif

/**
 * @defgroup messages Messages
 * @{
 */

/** One message is a header that owns a ring of object nodes; each object node owns a ring of parameter nodes.
 * A ring runs through the ListLink embedded in each node and ends at the head's own link. */
typedef struct ListLink {
    struct ListLink *next, /**< the next link of the ring; the link itself where the ring is empty */
        *prev;             /**< the one before */
} ListLink;

/** Value object; 676 bytes where pointers have 4 bytes. As the head of a message's object list only `link` counts.
 * Nodes belong to their message and live until it is released. */
typedef struct ObjectNode {
    char name[256];              /**< TR-181 path of the object instance, such as "Device.Hosts.Host.3" */
    unsigned char platform[404]; /**< the platform's own words: identifiers, operation, flags */
    ListLink params;             /**< head of the parameter list */
    ListLink link;               /**< place in the message's object list */
} ObjectNode;

/** Room of a parameter value, terminator included. */
#define PARAM_VALUE_SIZE 1024

/** Value parameter. Belongs to its message, as an object does. */
typedef struct ParamNode {
    char name[256];               /**< such as "HostName", without a path */
    char value[PARAM_VALUE_SIZE]; /**< text, whatever the parameter's type */
    uint32_t platform[4];         /**< the platform's own words: identifier, flags, state */
    ListLink link;                /**< place in the object's parameter list */
} ParamNode;

/** What a message asks for: MsgHeader.mainOper, which the request functions take as a word. Only gets and sets are ever
 * delivered. */
enum CaltofalOperation {
    CALTOFAL_OPER_GET = 1,               /**< "get" and its variants */
    CALTOFAL_OPER_SET = 2,               /**< "set", "set_only_db" */
    CALTOFAL_OPER_FACTORY_RESET = 32,    /**< "factoryreset" */
    CALTOFAL_OPER_BACKUP = 64,           /**< "backup" */
    CALTOFAL_OPER_REBOOT = 128,          /**< "reboot" */
    CALTOFAL_OPER_FIRMWARE_UPGRADE = 256 /**< "fwupgrade" */
};

/** What becomes of one object: `subOper` of faltocal_FillObject(), which the request functions take as a word. */
enum CaltofalSubOperation {
    CALTOFAL_SUBOPER_ADD = 1,    /**< "add": the table gets a new instance */
    CALTOFAL_SUBOPER_DELETE = 2, /**< "del": the instance goes */
    CALTOFAL_SUBOPER_SET = 4,    /**< "set": its parameters get the values */
    CALTOFAL_SUBOPER_GET = 8,    /**< "get" */
    CALTOFAL_SUBOPER_ACTION = 16 /**< "act": for operations that are never delivered */
};

/** MsgHeader.listFlags: a node kind and, for a get, modifiers that the configuration layer interprets. A host passes
 * SOPT_OBJVALUE for the objects that it names and everything below them, or one of the last three. */
enum CaltofalListFlag {
    SOPT_OBJVALUE = 4,                /**< value objects; so does any other bit of CALTOFAL_VALUE_KINDS */
    SOPT_OBJATTR = 8,                 /**< attribute objects, where no value objects are chosen */
    SOPT_OBJACSATTR = 16,             /**< access-attribute objects, where neither is chosen */
    CALTOFAL_VALUE_KINDS = 0x147,     /**< every bit that chooses value objects */
    CALTOFAL_LIST_DEFAULTS = 0x40,    /**< default values instead of current ones */
    CALTOFAL_LIST_LEAF = 0x100,       /**< with CALTOFAL_LIST_MULTI: own parameters only, no objects below */
    CALTOFAL_LIST_MULTI = 0x1000,     /**< put by multi-object gets */
    CALTOFAL_LIST_GET = 0x1004,       /**< what "get" of a multi-object request stands for */
    CALTOFAL_LIST_GET_DEFAULT = 0x44, /**< "get_def_val" */
    CALTOFAL_LIST_GET_LEAF = 0x1100   /**< "get_leaf_node" and "get_filter_by_param_value" */
};

/** Who sends a message: MsgHeader.owner. A host is CALTOFAL_OWNER_HOST: it passes that to faltocal_SendMultiObj(); all
 * other functions put the owner themselves. The library only hands it on; what the configuration layer makes of it is
 * the layer's own business. The sandbox's layer answers all owners alike. */
enum CaltofalOwner {
    CALTOFAL_OWNER_HOST = 2,   /**< hosts, faltocal_createMessage() and the multi-object requests */
    CALTOFAL_OWNER_STORE = 4,  /**< faltocal_send_main_ToDb() */
    CALTOFAL_OWNER_SINGLE = 32 /**< faltocal_send_main() and faltocal_create_msg() */
};

/** Message header: six words, zeroed before first use. Lives on the caller's stack or comes from
 * faltocal_createMessage(). Its lists are released with faltocal_finalize(); zero it after that before it is used anew.
 */
typedef struct MsgHeader {
    uint32_t mainOper;      /**< CaltofalOperation */
    uint32_t listFlags;     /**< CaltofalListFlag */
    uint32_t owner;         /**< CaltofalOwner */
    uint32_t initialised;   /**< 1 once the list head was asked for */
    uint32_t reserved;      /**< always 0 */
    ObjectNode *objectList; /**< list head; NULL: not initialised. Attribute kinds are cast */
} MsgHeader;

/** Codes with which a configuration layer refuses a message. The first two are common to all; the others are
 * those of the sandbox's layer, a device's layer may have its own. caltofal_layerCodeText() words them. */
enum CaltofalLayerCode {
    CALTOFAL_ABSENT_OBJECT = -202,     /**< the object does not exist */
    CALTOFAL_NO_MATCH = -208,          /**< no instance matches the filter */
    CALTOFAL_BAD_MESSAGE = -201,       /**< message malformed: no list, an empty path, an unknown operation */
    CALTOFAL_UNKNOWN_PARAMETER = -203, /**< the object has no such parameter */
    CALTOFAL_READ_ONLY = -204,         /**< the parameter or table cannot be written */
    CALTOFAL_WRONG_TYPE = -205,        /**< the value is not of the parameter's type */
    CALTOFAL_OUT_OF_RANGE = -206,      /**< the value is outside the parameter's range, length or enumeration */
    CALTOFAL_NOT_A_TABLE = -207,       /**< add on what is not a table, or delete on what is not an instance */
    CALTOFAL_NO_GATEWAY = -209,        /**< there is no gateway to talk to */
    CALTOFAL_STORE_BUSY = -210,        /**< the store stayed locked by another process */
    CALTOFAL_STORE_FAILED = -211,      /**< the store cannot be read or written (disk full, damaged, read-only) */
    CALTOFAL_NO_MEMORY = -212          /**< out of memory */
};

/** What a code of CaltofalLayerCode means, such as "the object does not exist", for a person to read; NULL for any
 * other code. The text is a constant. */
static inline const char *caltofal_layerCodeText(int code) {
    switch (code) {
    case CALTOFAL_ABSENT_OBJECT:
        return "the object does not exist";
    case CALTOFAL_NO_MATCH:
        return "no instance matches the filter";
    case CALTOFAL_BAD_MESSAGE:
        return "the message is malformed";
    case CALTOFAL_UNKNOWN_PARAMETER:
        return "the object has no such parameter";
    case CALTOFAL_READ_ONLY:
        return "the parameter or table cannot be written";
    case CALTOFAL_WRONG_TYPE:
        return "the value is not of the parameter's type";
    case CALTOFAL_OUT_OF_RANGE:
        return "the value is outside the parameter's range, length or enumeration";
    case CALTOFAL_NOT_A_TABLE:
        return "add on what is not a table, or delete on what is not an instance";
    case CALTOFAL_NO_GATEWAY:
        return "there is no gateway to talk to";
    case CALTOFAL_STORE_BUSY:
        return "the store stayed locked by another process";
    case CALTOFAL_STORE_FAILED:
        return "the store cannot be read or written";
    case CALTOFAL_NO_MEMORY:
        return "out of memory";
    default:
        return NULL;
    }
}

/** The next object of a message after `after` (NULL: the first), or NULL at the end. Value objects only. The node
 * belongs to the message. */
static inline ObjectNode *caltofal_nextObject(const MsgHeader *message, const ObjectNode *after) {
    ListLink *next;
    if (!message->objectList) {
        return NULL;
    }
    next = after ? after->link.next : message->objectList->link.next;
    return next == &message->objectList->link ? NULL
                                              : (ObjectNode *)(void *)((char *)next - offsetof(ObjectNode, link));
}

/** The next parameter of an object after `after` (NULL: the first), or NULL at the end. The node belongs to the
 * message. */
static inline ParamNode *caltofal_nextParam(const ObjectNode *object, const ParamNode *after) {
    ListLink *next = after ? after->link.next : object->params.next;
    return next == &object->params ? NULL : (ParamNode *)(void *)((char *)next - offsetof(ParamNode, link));
}

/** Allocates a header with help_calloc() and initialises it with CALTOFAL_OWNER_HOST. `mainOper` and `listFlags` as in
 * MsgHeader. NULL when there is no memory for the header; objectList is NULL when there is none for the list. The
 * header belongs to the caller, who releases the lists with faltocal_finalize() and the header with free(). */
MsgHeader *faltocal_createMessage(uint32_t mainOper, uint32_t listFlags);

/** Adds one object node named `objectName` to the list `listHead` and stores it in `*outNode`.
 * `mainOper` CALTOFAL_OPER_GET: a node of the kind that `listFlags` chooses; `subOper` does not count. 0, or -1 when
 * nothing could be added (`*outNode` is then NULL).
 * CALTOFAL_OPER_SET: `subOper` CALTOFAL_SUBOPER_ADD, _DELETE or _SET; 0. Others answer -1, `*outNode` untouched,
 * without a word anywhere.
 * Any other main operation adds nothing, leaves `*outNode` untouched and answers 0. */
int faltocal_FillObject(ObjectNode **outNode, ObjectNode *listHead, const char *objectName, uint32_t mainOper,
                        uint32_t subOper, uint32_t listFlags);

/** Adds a parameter to `*node`: name and value for CALTOFAL_OPER_SET, the name alone for CALTOFAL_OPER_GET, nothing for
 * others.
 * 0; -1 when `paramName` is NULL and `paramId` is 0. The id itself is not passed on. */
int faltocal_FillParam(ObjectNode **node, uint32_t mainOper, const char *paramName, uint32_t paramId,
                       const char *value);

/** Adds a filter to `*node`: a get answers the instances whose parameter `paramName` equals `value`.
 * 0, or -1 when `paramName` is NULL. */
int faltocal_AddFilter(ObjectNode **node, const char *paramName, const char *value);

/** Releases the message's lists, not the header. The helper library's result. */
int faltocal_finalize(MsgHeader *message);

/** Writes a formatted text of at most 1,023 bytes to "/dev/console", without adding a newline. The console is opened
 * and closed for each call. The result of closing it, or the negative descriptor when it cannot be opened. */
int PRINT_TO_CONSOLE(const char *format, ...) CALTOFAL_PRINTF(1, 2);

/** Hands a finished message to the configuration layer: a get is read, a set is set and applied. 0, the
 * layer's code (a line on standard error says which of the two failed), or -1 for any other main operation. */
int faltocal_sendQuery(MsgHeader *message);

/** As faltocal_sendQuery(), but a set is stored in the configuration database only and not applied. */
int faltocal_sendQuery_ToDb(MsgHeader *message);

/** One object, one message, one call. `message` is initialised here (CALTOFAL_OWNER_SINGLE), whatever it held.
 * What it held before is not released: do that first.
 * `mainOper`: "get", "set", "factoryreset", "backup", "reboot" or "fwupgrade"; `subOper`: "get", "set", "add",
 * "del" or "act". Then `count` parameters: for "get" a name each (const char *), for "set" a name and a value.
 * Count 0 asks for the whole object. A "get" is one with any of the sub-operations; a "set" with "get" or "act" is sent
 * without an object, which a layer refuses. 0, or -1 for an unknown keyword (without a trace) or a failed send. Only
 * "get" and "set" are ever delivered. The caller releases the message in every case, and reads a get's answer from it
 * before. */
int faltocal_send_main(MsgHeader *message, const char *object, const char *mainOper, const char *subOper, int count,
                       ...);

/** As faltocal_send_main() with CALTOFAL_OWNER_STORE and faltocal_sendQuery_ToDb(). */
int faltocal_send_main_ToDb(MsgHeader *message, const char *object, const char *mainOper, const char *subOper,
                            int count, ...);

/** Collects objects in one message and sends it with the last call. A path with a "&", normally at its end, is only
 * queued: without its last character and cut to 255; a path without it is added and the message sent; the word
 * "query" in any case sends what was queued. The first call on a zeroed header initialises it (CALTOFAL_OWNER_HOST).
 * `mainOper` adds to the keywords of faltocal_send_main(): "get_def_val" (defaults), "get_leaf_node" (own
 * parameters only), "get_filter_by_param_value" (parameters are name/value filters) and "set_only_db" (stores
 * without applying, when the message was started by an earlier call). A message has one operation, that of the call
 * that began it: of the others' `mainOper` only "set_only_db" counts, and any word is taken; `subOper` counts in each.
 * 0, or -1 with a console trace. The caller releases the message in every case. */
int faltocal_send_main_multi_obj(MsgHeader *message, const char *object, const char *mainOper, const char *subOper,
                                 int count, ...);

/** As faltocal_send_main_multi_obj() with the parameters in an array: names, or names and values alternating
 * (2 * `count` texts) for a set and for filters. */
int faltocal_send_main_multi_obj_No_variable(MsgHeader *message, char *object, const char *mainOper,
                                             const char *subOper, int count, const char **params);

/** As faltocal_send_main_multi_obj(), but the caller chooses list flags (CaltofalListFlag) and owner (CaltofalOwner),
 * `send` says whether this call sends, "&" has no meaning, only "query" in lower case is a query, and the keywords are
 * those of faltocal_send_main() and "get_filter_by_param_value". 0, the layer's own code, or -1 for an unknown keyword.
 * Nothing is traced. */
int faltocal_SendMultiObj(uint8_t send, uint32_t listFlags, uint32_t owner, MsgHeader *message, const char *object,
                          const char *mainOper, const char *subOper, int count, ...);

/** Looks in an answer of value objects (MsgHeader.objectList; none when it is NULL) for the first parameter named
 * `paramName` (128 characters compared) of an object whose name contains `objectPart`, and copies its value into
 * `*out`, char[128], cut to 127 characters and terminated. 0, or -1 with `*out` untouched. */
int caltofal_paramValue_get(ObjectNode *objectList, const char *objectPart, const char *paramName, char **out);

/** Points `*out` to the value of the object's first parameter named `paramName`; valid until the message is
 * released. 0, or -1 with a console trace and `*out` untouched. Null arguments and an empty name answer -1. */
int zintu_GetParamFromObjUnit(ObjectNode *object, const char *paramName, const char **out);

/** Appends "." to a path that is not empty and does not end in one. The buffer needs room for it. */
void zintu_InsertDotEndofObj(char *path);

/** Held around each single call into the configuration layer. A host that calls the layer directly locks it for that
 * call. A function of this library that asks the layer never returns when its caller holds the lock. */
extern pthread_mutex_t capi_mutex;

/** Where the message builders' log lines go: bit 0 syslog, bit 1 standard output in colour. Initially 1. The console
 * trace does not depend on it. Set it before threads start. */
extern uint16_t unfaltocalLogType;

/** Lines of a syslog priority above this one are dropped. Initially 5. Set it before threads start. */
extern uint16_t unfaltocalLogLevel;

/** @} */

/**
 * @defgroup text Identity, text, shell
 * @{
 */

/** The instance number of the "Device.Hosts.Host." entry with that MAC address ("PhysAddress", 17 characters with
 * colons, any case) or IPv4 address ("IPAddress"); 0 when there is none, the text is neither, or asking failed. */
int GetDeviceID(char *identifier);

/** Reads an interface's MAC address from "/opt/lantiq/etc/nextmac.conf" into `macOut`, whole: room for 64 bytes
 * is always enough. A missing file is made, empty, where that is possible. The first line that contains the name and
 * ">" answers, "xeth0>" for "eth0" too; name and ">" are cut at 31 characters together, lines are read in pieces of 63.
 * 0, or -1 with a console trace. */
int zintu_scapi_getMacFromFile(const char *interfaceName, char *macOut);

/** 0 for six pairs of hexadecimal digits with colons, -1 otherwise and for NULL. */
int zintu_isValidMacAddress(const char *mac);

/** 0 for a dotted-decimal IPv4 address of four parts, -1 otherwise and for NULL. */
int zintu_isValidIPv4Address(const char *address);

/** Writes the decimal digits of a positive value into `out`, char[11]; zero and negative values give "". Returns 0. */
int itoa(int value, char *out);

/** 1 for "1" and for "true" in any case, else 0. */
int atob(const char *text);

/** Turns 'a' to 'z' to upper case in place; returns `text`. */
char *strupr(char *text);

/** Reverses a text in place. */
void reverse_string(char *text);

/** The first character within `text` that is not white space; a newline counts as content. */
char *trim_start_space(char *text);

/** Turns "<tag>payload</tag>" into "payload" in place (at most 127 characters) and returns `text`. The text of
 * `openTag` is not compared, only its length. A text without "</" after the opening tag stays as it is. */
char *remove_rss_tag(char *text, const char *openTag);

/** Runs a shell command and puts its first output line (at most 127 characters, one trailing white-space
 * character dropped) into `output`, char[128]; on failure all 128 bytes are zeroed and the console says why.
 * A failure is a command that prints nothing, whatever its exit code, which is not looked at; also a NULL or empty
 * command, and a NULL output. The command reaches the shell unescaped. Returns `output`. */
char *get_from_shell(const char *command, char *output);

/** @} */

/**
 * @defgroup network Network pages
 * @{
 */

/** Default WAN summary. ZintuGet_DefGw(), ZintuGet_BrWanInfo(), ZintuGet_WanIPv6(), ZintuGet_DefWanInfo() and
 * ZintuGet_AtmInfo() fill parts of it. Reserved fields are only written by values that run on into them. */
typedef struct ZintuWanInfo {
    char sStatus[16];            /**< "Up" or "Down" */
    char sWanIpType[16];         /**< "dynamic", "static", "pppoe", "pppoa", "pptp", "l2tp" */
    char sWanLinkType[16];       /**< such as "ethernet", "wifi" */
    char sOperMode[16];          /**< "router" or "bridge" */
    char sIpv4Mode[16];          /**< "static" for static addressing */
    char sIPAddress[16];         /**< dotted IPv4 address */
    char sSubnetMask[16];        /**< dotted mask */
    char sGateway[16];           /**< dotted default gateway */
    char sName[32];              /**< Linux interface name */
    char sWanIpInterface[256];   /**< IP interface object, such as "Device.IP.Interface.3" */
    int32_t nWanIpIfIndex;       /**< its instance number */
    char sLowerLayers[256];      /**< object below it */
    char sReserved13[256];       /**< reserved */
    char sDescription[256];      /**< vendor description of the IPv4 address object */
    char sPppStaticAddress[32];  /**< dotted IPv4 address */
    char sUsername[64];          /**< PPP user */
    char sPassword[64];          /**< PPP password, in the clear */
    char sConnectionTrigger[32]; /**< "always", "ondemand" or "manual" */
    int32_t nIdleDisconnectTime; /**< seconds */
    int32_t nMaxMRUSize;         /**< bytes */
    char sACName[256];           /**< PPPoE access concentrator */
    char sServiceName[256];      /**< PPPoE service */
    char sPppInterface[256];     /**< PPP interface object */
    int32_t bDnsAuto;            /**< 1 DNS servers obtained automatically, 0 static; ZintuGet_DefWanInfo() says how */
    char sDNS1[16];              /**< dotted IPv4 address; ZintuGet_DefWanInfo() says where it comes from */
    char sDNS2[16];              /**< likewise; of a DHCP list of three or more, cut text (ZintuGet_WanDns()) */
    char sReserved27[784];       /**< reserved */
    int32_t nAtmVpi;             /**< virtual path of the ATM link */
    int32_t nAtmVci;             /**< virtual channel of the ATM link */
    char sAtmQoSClass[32];       /**< such as "UBR"; up to 31 characters */
    char sReserved31[32];        /**< reserved */
    int32_t bVlanEnable;         /**< 1 when the VLAN termination under the WAN is enabled */
    int32_t nVlanID;             /**< its VLAN number */
    char sReserved34[256];       /**< reserved */
    uint8_t bIpv6Enable;         /**< 1 when IPv6 is enabled on the device */
    char sIpv6Type[32];          /**< "slaac", "dhcpv6" or "static" */
    char sIpv6Address[46];       /**< the WAN's first IPv6 address, as the layer gives it: a prefix length ("/64") may
                                      follow; 46 characters leave no terminator */
    char sIpv6NextHop[46];       /**< next hop of the WAN's IPv6 forwarding entry; 46 likewise */
} ZintuWanInfo;

/** DSL line 1 and channel 1. A text that is too long for its field leaves the field as it was. */
typedef struct ZintuDslLineInfo {
    char sStatus[16];               /**< begins with "connected" or "disconnected" */
    char sCurrentProfile[256];      /**< such as "17a" */
    char sReserved3[272];           /**< reserved */
    int32_t nUpstreamCurrRate;      /**< kbit/s */
    int32_t nDownstreamCurrRate;    /**< kbit/s */
    int32_t nUpstreamMaxBitRate;    /**< kbit/s */
    int32_t nDownstreamMaxBitRate;  /**< kbit/s */
    int32_t nUpstreamNoiseMargin;   /**< 0.1 dB */
    int32_t nDownstreamNoiseMargin; /**< 0.1 dB */
    char sLATNds[32]; /**< downstream line attenuation per band, comma-separated: plain numbers are 0.1 dB, those with
                           a decimal point dB */
    char sLATNus[32]; /**< upstream, likewise */
    int32_t nXTURCRCErrors; /**< CRC errors seen by the modem */
    int32_t nXTUCCRCErrors; /**< CRC errors seen by the exchange */
} ZintuDslLineInfo;

/** LAN page, IPv4. */
typedef struct LANv4Info {
    uint8_t bDHCPv4Active;   /**< 1 when both the DHCP server and its first pool are enabled */
    char sIPv4Address[16];   /**< dotted address; a longer text is cut without a terminator, as in the next four */
    char sIPv4Subnet[16];    /**< dotted mask */
    char sDHCPv4StartIP[16]; /**< first address of the pool */
    char sDHCPv4EndIP[16];   /**< last address of the pool */
    char sMACAddr[18];       /**< of the first Ethernet interface */
    int32_t nLeaseTimeSec;   /**< seconds */
} LANv4Info;

/** LAN page, IPv6. */
typedef struct LANv6Info {
    uint8_t bIPv6Active;         /**< 1 when IPv6 is enabled on the device */
    char sIPv6Address[128];      /**< without the prefix length */
    int32_t nPrefixLength;       /**< bits */
    char sLANv6Mode[128];        /**< how hosts get addresses, in the device's words */
    char sDNSv6Primary[128];     /**< DNS server given to hosts */
    char sDNSv6Secondary[128];   /**< the second one */
    char sDomainNamev6[128];     /**< domain name given to hosts */
    char sDHCPv6StartIP[128];    /**< first address of the DHCPv6 pool */
    char sDHCPv6EndIP[128];      /**< last address of the DHCPv6 pool */
    int32_t nLeaseTimeSec;       /**< seconds */
    uint8_t bPDActive;           /**< prefix delegation on the LAN */
    char sManualPrefix[128];     /**< prefix set by hand, without its length */
    int32_t nManualPrefixLength; /**< bits; 64 whenever a manual prefix was read */
} LANv6Info;

/** Kind of a WAN connection: ZintuMultiWanInfo.nWan1Type, nWan2Type. */
enum CaltofalWanKind {
    CALTOFAL_WAN_ETHERNET = 0, /**< interface "w900", or a connection mode that begins with "ETH" */
    CALTOFAL_WAN_OTHER = 1,    /**< interface "w901", and everything else: DSL, or not known */
    CALTOFAL_WAN_TETHERED = 2  /**< interface "w902", or a connection mode that begins with "TETHER" */
};

/** Multi-WAN page. */
typedef struct ZintuMultiWanInfo {
    int32_t nEnabled;         /**< 1, 0, or -1 when the device does not say */
    int32_t nFailOver;        /**< 1 fail-over, 0 load balancing */
    int32_t nWan1Type;        /**< CaltofalWanKind of the first WAN */
    int32_t nWan2Type;        /**< of the second WAN */
    char sWan1Interface[128]; /**< UCI section or interface of the first WAN */
    char sWan2Interface[128]; /**< of the second WAN */
} ZintuMultiWanInfo;

/** The operation mode number of "Device.X_ZINTU_CurrentNetwork"; -1 when it cannot be told: test that first, as -1 has
 * all bits set. Bit value 4 marks a router or mesh master. The number's bits are the `flags` of
 * ZintuGet_BrWanInfo() (CaltofalBridgedWanFlag), which fills the page of a device without that bit. */
int32_t ZintuGet_OperMode(void);

/** Fills sWanIpInterface, sWanIpType, sWanLinkType, sIpv4Mode, sPppStaticAddress, sDNS1 and sDNS2 from
 * "Device.X_ZINTU_CurrentNetwork". Each value is copied at its own length without a terminator and may run on into
 * the fields after it, never past the record. 0, or -1 when the request fails. */
int32_t ZintuGet_DefGw(ZintuWanInfo *info);

/** The UCI section of the first WAN connection whose "ConnMode" begins with `connMode`, into `uciSection`,
 * char[128]. 0, or -1 (null or empty arguments, none found, request failed). */
int32_t ZintuGet_UciSectionByConnMode(const char *connMode, char *uciSection);

/** The UCI section of the WAN connection that carries the default route, into `uciSection`, char[128]: at most 127
 * characters, the rest zeroed up to there. The path of its IP interface and that interface's name are cut at 127
 * characters. 127 characters leave no terminator in a buffer that was not zero-filled. 0, or -1. */
int32_t ZintuGet_UciSectionOfDefGw(char *uciSection);

/** The first "LowerLayers" below `object`, into `lowerLayers`, char[128]: 128 characters and more leave no
 * terminator. 0 also when there is none (`lowerLayers` untouched); -1 for null arguments or a failed request. */
int32_t ZintuGet_LowerLayers(const char *object, char *lowerLayers);

/** The IP interface object of the Ethernet WAN (alias "cpe-EthWan-IPIntf-1"; the last, where several have it), into
 * `objName`, char[128]. 0, or -1. */
int32_t ZintuGet_EthWanObjName(char *objName);

/** Fills the record from "Device.DSL.Line.1." and "Device.DSL.Channel.1.". 0, or -1 as soon as one of its four
 * requests fails; what was filled before stays. */
int32_t ZintuGet_LineInfo(ZintuDslLineInfo *info);

/** Sets modes[i] to 1 for each DSL mode i + 1 enabled in "Device.DSL.X_LANTIQ_COM_Config"; flags are never cleared.
 * DEF_DSL_MODE names them. 0, or -1 when the request fails. */
int32_t ZintuGet_DslMode(int32_t modes[10]);

/** The IPv4 DNS servers in use on `ipInterface` (with or without a final dot, cut at 255 characters): those of its
 * DHCPv4 client, else of the DNS client's server table. `dns1`, `dns2`: char[16]. From a DHCP list `dns2` gets all that
 * follows the first comma, cut to 15 characters: of three servers or more that is text, not an address. 0 also when
 * there are none (untouched); -1 for null or empty arguments or when the server table cannot be read. */
int32_t ZintuGet_WanDns(const char *ipInterface, char *dns1, char *dns2);

/** The statically configured IPv4 DNS servers of `ipInterface`; `*dnsAuto` is 1 when there are none, else 0.
 * `dns1`, `dns2`: char[16], untouched where there is no such server. 0, or -1 as ZintuGet_WanDns(). */
int32_t ZintuGet_WanStaticDns(const char *ipInterface, int32_t *dnsAuto, char *dns1, char *dns2);

/** `flags` of ZintuGet_BrWanInfo(), which are bits of ZintuGet_OperMode(); other bits do not count. */
enum CaltofalBridgedWanFlag {
    CALTOFAL_BRIDGED_WAN_WIFI = 2,  /**< the WAN is a Wi-Fi link, not an Ethernet one */
    CALTOFAL_BRIDGED_WAN_REFUSE = 4 /**< a router or mesh master: nothing is to be filled */
};

/** Fills the summary for a device in bridge mode, whose WAN is "Device.IP.Interface.1.". Fixed values: sOperMode
 * "bridge", sWanIpType and sIpv4Mode "dynamic", sWanLinkType "wifi" or "ethernet" by `flags` (CaltofalBridgedWanFlag),
 * bVlanEnable and nVlanID 0, bDnsAuto 1, and of the IPv6 fields bIpv6Enable 0 and sIpv6Type "dhcpv6", whatever the
 * device does. sStatus is "Up" for an address whose description contains "DHCP"; without one it is "Down", and
 * sDescription, sIPAddress and sSubnetMask are "0.0.0.0". nWanIpIfIndex is left alone. -1 with nothing written for
 * CALTOFAL_BRIDGED_WAN_REFUSE, otherwise the code of the forwarding request (0 success). */
int32_t ZintuGet_BrWanInfo(uint32_t flags, ZintuWanInfo *info);

/** Fills bIpv6Enable, sIpv6Type, sIpv6Address and sIpv6NextHop; needs sWanIpInterface and nWanIpIfIndex. An address of
 * 47 characters or more leaves its field as it was. The path of the address object is cut at 255 characters. The code
 * of the forwarding request. The message of that request is not released: each call leaves one. */
int32_t ZintuGet_WanIPv6(ZintuWanInfo *info);

/** Fills the whole summary of the WAN connection that carries the default route, except the ATM fields. Paths are cut
 * at 255 characters. -1 when no default WAN is known; otherwise the code of the forwarding request
 * (CALTOFAL_NO_MATCH: no entry for the WAN, CALTOFAL_ABSENT_OBJECT: no such table), or, where a VLAN termination lies
 * below the WAN, the code of the request for that in its place: then 0 also without a forwarding entry or table. 0 does
 * not say that the requests for the interface, its address, PPP, DNS and IPv6 succeeded: a field that one of them fills
 * keeps what it held.
 * DNS: sDNS1 and sDNS2 are those of ZintuGet_DefGw(); where sWanIpType contains "dynamic", those of
 * ZintuGet_WanStaticDns() replace them, and bDnsAuto is its result. For other types bDnsAuto is 0 where the type
 * contains "static", or "pppoe" with an sIpv4Mode that contains "static", else 1. Only where both servers begin with
 * "0.0.0.0", or neither is an address, those in use (ZintuGet_WanDns(), what a DNS page shows) are taken.
 * Leaves the message of ZintuGet_WanIPv6(). */
int32_t ZintuGet_DefWanInfo(ZintuWanInfo *info);

/** 1 when IPv6 prefix delegation is on for the current WAN, 0 when not, -1 when the request fails. */
int32_t ZintuGet_IPv6PD(void);

/** Fills nAtmVpi, nAtmVci and sAtmQoSClass from "Device.ATM.Link.1."; a text of 32 characters or more leaves its fields
 * as they were. 0, or -1 when a request fails. */
int32_t ZintuGet_AtmInfo(ZintuWanInfo *info);

/** Fills the LAN page's IPv4 record. 0; -1 when a request fails, with the record as it was. Any other code of the
 * second request, that for the server's switch, is returned with the record filled all the same. A layer that refuses
 * it and leaves "Enable" without a value, as the sandbox's does, then has bDHCPv4Active set to 0: it is not known. */
int32_t ZintuGet_LANv4Info(LANv4Info *pxLANv4Info);

/** Fills the LAN page's IPv6 record. Without an address in the answer it is the manual prefix followed by "1". 0, or -1
 * when a request fails, with the record as it was. */
int32_t ZintuGet_LANv6Info(LANv6Info *pxLANv6Info);

/** Fills the multi-WAN record. 0, or -1 when the request fails; without "Enabled" only nEnabled is written (-1). */
int32_t ZintuGet_MultiWanInfo(ZintuMultiWanInfo *info);

/** The Linux name of the current WAN interface, copied whole into `ifName`: PARAM_VALUE_SIZE bytes are always
 * enough. 0, or -1. */
int32_t zintu_GetWanIfName(char *ifName);

/** Finds the first instance of `object` whose parameter `filterParam` equals `filterValue` and that has
 * `wantedParam`; writes its name and that value. Both outputs are char[128], either may be null. 0; -1 when there
 * is none, for null arguments, or when the request fails. */
int32_t zintu_GetValueFromDBInfo(const char *object, const char *filterParam, const char *filterValue,
                                 const char *wantedParam, char *outObjectName, char *outValue);

/** 1 when the multi-bridge is enabled and its IPTV bridge has a member port, 0 when not, -1 when it cannot be told. */
int32_t Zintu_isEnabledIptvStb(void);

/** An IPv4 address in network byte order; 0 for a null text, 0xFFFFFFFF for one that is not an address. */
uint32_t IPConvertTouint(const char *text);

/** 0 for an IPv6 address, -1 otherwise and for NULL. */
int32_t validationCheck_IPv6Addr(const char *text);

/** Names of the DSL modes 1 to 10. */
extern const char *const DEF_DSL_MODE[10];

/** "Device.IP.Interface.3." to "Device.IP.Interface.21.". */
extern const char *const ZINTU_DEF_IP_INTERFACE[19];

/** @} */

/**
 * @defgroup mesh Mesh
 * @{
 */

/** 1 when the roaming mesh is enabled ("Device.WiFi.X_ZINTU_RoamingMesh."), 0 when not or unknown. */
int ZINTU_meshgrove_check_is_enabled(void);

/** Switches the roaming mesh on (non-zero) or off. 0, or -1 when the request fails. */
int ZINTU_meshgrove_set_enable_value(uint8_t enable);

/** As get_from_shell(), but every call is traced, on failure only the first byte of `output` is cleared, and a NULL
 * output runs the command for its effect. Returns `output`. */
char *ZINTU_meshgrove_get_from_shell(const char *command, char *output);

/** Replaces a satellite's MAC address by its IP address, in place: `mac` is char[128]. Cleared when there is none.
 * The command is cut at 511 characters. The text reaches the shell unescaped: check it with zintu_isValidMacAddress()
 * first. Returns `mac`. */
char *ZINTU_meshgrove_get_IP_from_MAC(char *mac);

/** Tells the mesh daemon to push the settings to its satellites and waits 5 seconds; does nothing when the mesh is
 * off, the device is not the master, or no satellite is connected. Always 0. */
int ZINTU_meshgrove_sync_to_slave(void);

/** @} */

/**
 * @defgroup conversion Wi-Fi: conversion
 *
 * FAPI values are the configuration layer's, UI values the user interface's.
 * @{
 */

/** A row of a pair table, zero-padded. Tables have no end mark: their walkers are told the number of rows. Of several
 * equal cells the first row's answers. */
typedef struct PairRow {
    char sFirst[127], /**< FAPI (or device) value */
        sSecond[127]; /**< UI (or phy) value */
} PairRow;

/** Protection of 802.11n: "Enabled" is "true". */
extern const PairRow Dot11nProtect_FapiToUi_Table[2];
/** WMM class: "AC_Gaming" is "gaming"; the UI's "(null)" stands for "AC_Normal". */
extern const PairRow WMM_Option_FapiToUi_Table[4];
/** Security mode: "WPA2-Personal" is "WPA2-PSK". "WEP" goes back to "WEP-64". */
extern const PairRow SecurityType_FapiToUi_Table[8];
/** Short guard interval of 802.11ac: "true" is "on". */
extern const PairRow VhtShortGuardInterval_FapiToUi_Table[2];
/** Guard interval of 802.11n: "400nsec" is "on". */
extern const PairRow ShortGuardInterval_FapiToUi_Table[2];
/** Side of the secondary channel: "AboveControlChannel" is "upper". */
extern const PairRow SideBand_FapiToUi_Table[3];
/** Channel width: "40MHz" is "40". */
extern const PairRow BandWidth_FapiToUi_Table[5];
/** Standards: "b,g,n" is "802.11b+g+n". */
extern const PairRow WireLessMode_FapiToUi_Table[12];
/** Radio of an interface: "wlan0" is "phy0". */
extern const PairRow Interface_DevToPhy_Table[4];
/** Band: "2.4GHz" is "2.4g". */
extern const PairRow Interface_FapiToUi_Table[2];

/** Intervals at which a host asks again while a 5 GHz scan runs: 25, then 3 each. The host chooses the unit; the
 * command-line tool takes them as seconds. No function reads them. */
extern const uint8_t SCAN_5G_RetryTime[40];

/** As SCAN_5G_RetryTime for a 2.4 GHz scan: 15, then 3 each. */
extern const uint8_t SCAN_24G_RetryTime[40];

/** As SCAN_5G_RetryTime for a WPS run: 5, then 3 each. */
extern const uint8_t WPS_RetryTime[40];

/** The second cell of the first row whose first cell equals `text`, or `text` itself. NULL for NULL, with a trace. */
const char *FapiToUi_Str(const char *text, const PairRow *table, int rows);

/** The first cell of the first row whose second cell equals `text`, or `text` itself. NULL for NULL, with a trace. */
const char *UiToFapi_Str(const char *text, const PairRow *table, int rows);

/** As FapiToUi_Str(); `text` is REQUIRED. */
const char *DevToPhy_Str(const char *text, const PairRow *table, int rows);

/** @{ */
/** One setting each, by the table of that name: `direction` 1 converts FAPI to UI, any other UI to FAPI. Unknown values
 * pass unchanged; NULL for NULL, with a trace. OperatingStandards is WireLessMode_FapiToUi_Table, ExtensionChannel
 * SideBand_FapiToUi_Table. */
const char *OperatingStandards_ConvStr(const char *text, int direction);
const char *BandWidth_ConvStr(const char *text, int direction);
const char *ExtensionChannel_ConvStr(const char *text, int direction);
const char *ShortGuardInterval_ConvStr(const char *text, int direction);
const char *VhtShortGuardInterval_ConvStr(const char *text, int direction);
/** @} */

/** As BandWidth_ConvStr() by WMM_Option_FapiToUi_Table; NULL and "" give "(null)" (direction 1) or "AC_Normal", with a
 * trace. */
const char *WMMOption_ConvStr(const char *text, int direction);

/** As BandWidth_ConvStr() by Dot11nProtect_FapiToUi_Table; NULL and "" give "false" (direction 1) or "Disabled", with a
 * trace. */
const char *Dot11nProtect_ConvStr(const char *text, int direction);

/** Direction 1: a percentage to "high" (above 50), "medium" (26 to 50) or "low". Other: a prefix of "high",
 * "medium" or "low" to "100", "50" or "25"; no match gives "100". NULL gives NULL. */
const char *TransmitPower_ConvStr(const char *text, int direction);

/** @{ */
/** These return `text`: every setting has a converter. */
const char *AutoChannelEnable_ConvStr(const char *text, int direction);
const char *ChannelList_ConvStr(const char *text, int direction);
const char *ConvStr(const char *text);
/** @} */

/** The decimal value of the text, as atoi(). */
int ConvInt(const char *text);

/** 1 for exactly "true" or "1", else 0. */
int ConvStrToBool(const char *text);

/** "true" when the low byte of `flag` is not zero, else "false". */
const char *ConvBoolToStr(int flag);

/** @{ */
/** MAC filter modes: 1 for exactly "Allow", else 0; and back, "Allow" when `allow` is not zero, else "Deny", but
 * "Disabled" when the low byte of `enabled` is zero. */
int ConvMacACLModeToUI(const char *text);
const char *ConvMacACLModeToFapi(int enabled, int allow);
/** @} */

/** @{ */
/** SSID numbers: from 1 on radio 1 and from 9 on others in the configuration layer, from 0 in the user interface. */
int ConvSsidIdxToUI(int radio, int index);
int ConvSsidIdxToFapi(int radio, int index);
/** @} */

/** @{ */
/** The value where it is in range, else the default: 50..1000 or 100 (ms), 1..100 or 1 (beacons), 1000..2346 or
 * 2346 (bytes), 1000..2347 or 2346 (bytes). */
int ConvBeaconInterval(int value);
int ConvDtimInterval(int value);
int ConvFragmentationThreshold(int value);
int ConvRtsThreshold(int value);
/** @} */

/** 1 high (above 50 percent), 2 medium (26 to 50), 3 low. */
int ConvTransmitPower(int percent);

/** The channel number of a centre frequency at 2.4, 4.9, 5 or 60 GHz. Not at 6 GHz, which is counted on from 5 GHz:
 * 5955 gives 191, not 1. Others are not refused (0 gives -481), but 0 is the answer above 45,000 MHz outside 58,320 to
 * 64,800. */
int ConvFreqChannel(int frequencyMHz);

/** 1 for twelve hexadecimal digits, plain or in pairs separated by ':' or '-', else 0. It accepts some other texts too:
 * anything may follow twelve plain digits and a separator ("001122334455:; reboot"), before the second digit other
 * characters are passed over where a separator follows them ("x0:01122334455"), and pairs need not be aligned
 * ("001:11:22:33:44:5"). Check a text that goes to a shell
 * with zintu_isValidMacAddress(). */
int isValidMacAddress(const char *text);

/** Compares `n` positions ignoring the case of ASCII letters: -1, 0 or 1. Positions where both texts have ended
 * reset the result to 0: give the length of one of them. NULL texts and n = 0 give -1. */
int my_strnicmp(const char *s1, const char *s2, int n);

/** Pairs of hexadecimal digits to bytes and a NUL (strlen(hex) / 2 + 1 bytes). Other characters are not refused.
 * Returns 1. */
int ConvHexDecToCharStr(const char *hex, char *out);

/** `count` bytes to lower-case hexadecimal digits and a NUL (2 * count + 1 bytes). Returns 1. */
int ConvCharStrToHexDec(const char *bytes, int count, char *out);

/** @} */

/**
 * @defgroup wifi Wi-Fi: radios, stations, settings, survey, requests
 *
 * Interface names, SSIDs and paths reach the device's shell unescaped: the host checks them first.
 * @{
 */

/** One channel that a radio may use. */
typedef struct WifiChannelEntry {
    int32_t channel;       /**< number */
    int32_t frequency;     /**< centre, MHz */
    int32_t belowChannel;  /**< secondary channel below, 0: none */
    int32_t aboveChannel;  /**< secondary channel above, 0: none */
    int32_t bandwidths[4]; /**< MHz, packed from the first slot: 20, then 40, 80, 160 as allowed; 0: unused */
    int32_t reserved;      /**< 0 */
} WifiChannelEntry;

/** The channels that a radio may use, in the tool's order. */
typedef struct WifiChannelList {
    uint32_t count;                /**< entries in use */
    WifiChannelEntry entries[100]; /**< zero after those in use */
} WifiChannelList;

/** One associated station. */
typedef struct WifiStaEntry {
    char mac[128];       /**< as the driver prints it */
    int32_t rssiAverage; /**< dBm, mean of the values from -127 to -1; 0: there is none */
    int32_t rssi[4];     /**< dBm per antenna as the driver prints it: -128 where it has no value; 0: not printed */
} WifiStaEntry;

/** The stations of an access point, in the driver's order. */
typedef struct WifiStaList {
    uint32_t count;            /**< entries in use */
    WifiStaEntry entries[128]; /**< zero after those in use */
} WifiStaList;

/** One entry of an SSID's MAC filter table. */
typedef struct MacAccessEntry {
    int32_t index;        /**< instance number of the filter object */
    char name[128];       /**< cut to 126 characters */
    char macAddress[128]; /**< cut to 126 characters */
} MacAccessEntry;

/** The MAC filter table of an SSID. The caller sets `count` to 0 before the first entry. */
typedef struct MacAccessList {
    MacAccessEntry entries[32]; /**< in the order of the calls */
    int32_t count;              /**< entries in use */
} MacAccessList;

/** One setting. Texts are cut to 254, 254 and 126 characters. */
typedef struct WifiParamRow {
    char object[256];    /**< path of the object */
    char parameter[256]; /**< name of the parameter */
    char value[128];     /**< its value */
} WifiParamRow;

/** Settings in the order in which they were appended. The caller sets `count` to 0 before the first fill. */
typedef struct WifiParamTable {
    int32_t count;          /**< rows in use */
    WifiParamRow rows[100]; /**< of one object or of several */
} WifiParamTable;

/** One neighbouring network. Texts are never cut: a line of the file has room for 127 bytes, its newline included. Of a
 * longer one each 127 bytes are read as a line of their own. Such a piece is refused, unless it has ten columns itself:
 * 128 bytes of name make an entry whose ssid is the last of them. */
typedef struct SiteSurveyEntry {
    char ssid[128];       /**< the network's name as received: any bytes, chosen by a stranger */
    int32_t channel;      /**< number */
    int32_t rssi;         /**< as the survey gives it */
    char security[128];   /**< security mode, in the survey's words */
    char encryption[128]; /**< cipher, in the survey's words */
    char macaddr[128];    /**< BSSID */
    int32_t bandwidth;    /**< MHz */
    char phymode[128];    /**< standard, in the survey's words */
    char sideband[128];   /**< side of the secondary channel, in the survey's words */
    int32_t product;      /**< the survey's product number */
} SiteSurveyEntry;

/** What a survey found, in the file's order. */
typedef struct SiteSurveyList {
    int32_t count;            /**< set to 0 by the caller before each call */
    SiteSurveyEntry *entries; /**< allocated by GetSiteSurveyList(), released by the caller with free() */
} SiteSurveyList;

/** The number of an interface's radio, from `iw dev IF info`; -1 when it cannot be told. The command is cut at 127
 * characters. */
int GetPhyNumber(const char *ifname);

/** The channels that `iw phy` lists for the interface; radar channels only when radio `radioIndex` has 802.11h on,
 * channels above 2,484 MHz only for a radio other than 1. The list is zeroed first. What
 * the tool lists beyond 100 is dropped. Commands are cut at 127 characters. The entry count, 0 on failure. The message
 * of its request is not released. */
int GetChannelList(const char *ifname, int radioIndex, WifiChannelList *list);

/** The channel in use, from `iwlist IF channel`, a command that is cut at 127 characters. 1 when the shell ran,
 * also where the tool is missing, fails or names no channel: `*channel` is then untouched. 0 otherwise. */
int GetCurrentChannel(const char *ifname, int ignored, int *channel);

/** The side of the secondary channel at 2.4 GHz: "AboveControlChannel", "BelowControlChannel", or `fallback` where
 * both are possible. `countryCode` begins with an ISO 3166 code. */
const char *GetSideChannel(int channel, const char *countryCode, const char *fallback);

/** Always 0. */
int GetDFSChannel(void);

/** The stations of an access point, from the driver's "PeerFlowStatus" file; with a valid `macFilter` only that
 * one. The list is zeroed first. Those beyond 128 are dropped. The station count, 0 on failure. Leaves the work file
 * "/tmp/wlan_wave/sta_info_IF". Its path is cut at 127 characters, the command at 199. */
int GetStaInfo(const char *ifname, const char *macFilter, WifiStaList *list);

/** The number of clients of the enabled and active SSIDs of radio 1 or 2; what was counted before a failed request
 * is answered all the same. */
int GetAssociatedDeviceNumberOfEntries(int radioIndex);

/** Appends the MAC filter entry that `objectNode` holds, when it has both "name" and "macAddress"; at most 32
 * entries fit. `prefix` is the filter table's path without the final dot; where the table lies depends on the device,
 * in the sandbox it is "Device.WiFi.AccessPoint.N.X_ZINTU_MacFilter". Of the object's path 255 characters are read.
 * Always -1: judge by the count. */
int GetMacAccessList(ObjectNode *objectNode, const char *prefix, MacAccessList *list);

/** Appends a row. 0, or -1 for a null pointer or a full table. */
int SetParam(WifiParamTable *table, const char *object, const char *parameter, const char *value);

/** Appends the settings of SSID `ssidIndex` (configuration layer's numbering), its access point and its security, in
 * the order of the answer. Kept are, of the SSID, Enable, X_ZINTU_Active, SSID, BSSID and X_ZINTU_NetworkType; of the
 * access point SSIDAdvertisementEnabled, IsolationEnable, X_ZINTU_WebUIAccessPermit, X_ZINTU_InternetOnly and the
 * vendor object's MACAddressControlEnabled; of its security ModeEnabled, X_ZINTU_EncryptionType, KeyPassphrase,
 * RekeyingInterval, RadiusServerIPAddr, RadiusServerPort, RadiusSecret, X_ZINTU_Wep_Encryption, X_ZINTU_Wep_KeyType and
 * WEPKey. Rows that do not fit are lost. 0, or -1 with the table unchanged. */
int GetSsIdInfoFromFapiToBuff(int ssidIndex, WifiParamTable *table);

/** Appends the settings of radio `radioIndex` and of its first access point, as GetSsIdInfoFromFapiToBuff(). Kept are,
 * of the radio, Enable, Channel, AutoChannelEnable, OperatingStandards, OperatingChannelBandwidth, ExtensionChannel,
 * TransmitPower, GuardInterval, BeaconPeriod, DTIMPeriod, FragmentationThreshold, RTSThreshold, IEEE80211hEnabled and
 * RegulatoryDomain; of its vendor object Dot11dEnable, Dot11nProtection, WaveExplicitBeamforming,
 * VhtSUbeamformerEnabled, VhtGuardInterval, WaveInterfererDetectionThreshold, CoexEnabled, WaveIgnore40MhzIntolerant
 * and WaveMuOperation; of the access point WMMEnable, UAPSDEnable, X_ZINTU_WMMOption and X_ZINTU_WMMAckPolicy. */
int GetWireInfoFromFapiToBuff(int radioIndex, WifiParamTable *table);

/** Queues (object, parameter, value) in `changes` when `current` has another value, has none, or the low byte of
 * `force` is not zero. 0, or -1 for a null `current`, null texts, or a null or full `changes` with a row to add. */
int ComparOrSetParam(WifiParamTable *current, WifiParamTable *changes, const char *object, const char *parameter,
                     const char *value, int force);

/** 0 when the table's value for (object, parameter) equals `value`, 1 when it differs, -1 when there is none. */
int CheckGetParam(WifiParamTable *table, const char *object, const char *parameter, const char *value);

/** CheckGetParam() on `requested`, and on `current` where that has no such row. */
int CheckGetReqDbAndCurDb(WifiParamTable *requested, WifiParamTable *current, const char *object, const char *parameter,
                          const char *value);

/** Adds one set per object of `changes` to the caller's message and sends it, or leaves it queued when
 * `moreFollows`. `onlyDb` stores without applying when the message holds more than one object. 0 or -1. An empty table
 * adds nothing, sends nothing and answers 0, also where earlier calls have queued: faltocal_sendQuery(), or
 * faltocal_sendQuery_ToDb() to store only, is then due, else what was queued is lost. Object and parameter are cut to
 * 126 characters: an object of more is sent cut and without its values. The caller releases the message. */
int faltocal_fromDB(MsgHeader *header, WifiParamTable *changes, int moreFollows, int onlyDb);

/** Empties "/opt/lantiq/wave/confs" where it exists. Always 0. */
int Remove_Confs_File(void);

/** The number of lines of a file (a line counts anew every 999 characters); 0 when it cannot be read. */
int GetFileLineCnt(const char *path);

/** Writes `first` and then `second` into `target` with the shell's `cat`; the line count of `target`, 0 for NULL
 * `first` or empty `second` or `target` (both REQUIRED). The command is cut at 1,023 characters. */
int CombineScanResultFiles(const char *first, const char *second, const char *target);

/** Parses a survey's result file: ten tab-separated columns a line. With a non-empty `ssidFilter` only that network.
 * `entries` is allocated anew for all lines of the file; `count` grows by what was read. The count.
 * A line with an empty column is refused, so that networks without an SSID are dropped. Each refused line is printed on
 * the process's standard output, "scan[3] ssid: channel: ...", with its bytes as they are: strangers chose them, and
 * control characters may be among them. A host whose standard output is read by others points it elsewhere before. */
int GetSiteSurveyList(const char *path, SiteSurveyList *list, const char *ssidFilter);

/** @{ */
/** Ask the service daemon to start, cancel or reset WPS push-button. 1 when the shell ran, else 0. */
int ReqWPSActive(void);
int ReqWPSCancel(void);
int ReqWPSReset(void);
/** @} */

/** Asks the service daemon for a survey on `ifname`, for `ssid` or for all ("" ). 1 when the shell ran; 0 when it did
 * not, or when both are null. The command is cut at 255 characters, of which 46 are left for both texts. */
int ReqScan(const char *ifname, const char *ssid);

/** Which of the endpoints 1 and 2 is enabled, the first winning; -1 neither, 0 the request failed. `ifnameOut`,
 * char[128] or null, gets its interface name, cut to 126 characters, where it can be read: the "Name" of the object
 * that "SSIDReference" names, of which 126 characters are kept. */
int GetEPEnable(char *ifnameOut);

/** 1 when the endpoint's driver names a peer, whose MAC address goes to `macOut`, char[128] or null; else 0. Leaves the
 * work file "/tmp/wlan_wave/IF_peer_info". Its path is cut at 127 characters, the command at 255. */
int GetEPContection(const char *ifname, char *macOut);

/** GetEPEnable() and GetEPContection() in one: 1 connected, 0 not. `macOut` and the work file as there. */
int GetEPConnectionStatus(char *macOut);

/** The width (MHz) and primary channel figures of the driver's "channel" file, in its order, into `values` (room for
 * one per line of the file) or null. A line of more than 127 characters gives the figure of its first 127. 1 when at
 * least one was stored and none was zero, else 0. Leaves the work file of GetEPContection(), with its widths. */
int ReqEPChannelInfo(const char *ifname, int32_t *values);

/** Initialises a header for the operation "get", "set", "factoryreset", "backup", "reboot" or "fwupgrade" with
 * CALTOFAL_OWNER_SINGLE and CALTOFAL_LIST_GET. 0, or -1 for an unknown keyword with the header untouched. */
int faltocal_create_msg(MsgHeader *header, const char *operation);

/** Escapes a text for use between single quotes in a UCI command line in the shell, and there only: quotes and
 * backslashes are escaped, all else ($, backquote, ;, |, blank, newline) passes as it is. `target`: 4 * strlen(source)
 * + 1 bytes. Returns 0. */
int ConvSpecialChar_forUciCli(const char *source, char *target);

/** @} */

#if defined(__GNUC__)
#pragma GCC visibility pop
#endif

#ifdef __cplusplus
}
#endif

#endif
