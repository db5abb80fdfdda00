// SPDX-License-Identifier: MIT
#include "pages/capture/standard_access.h"

#include "pages/capture/line.h"
#include "pages/text.h"

#include <algorithm>
#include <cctype>
#include <iterator>

namespace pages::capture {
namespace {

// The read-only parameters of the standard's objects that gateways have, in four forms, from the widest to the
// narrowest. What is in none of them may be set, or is nothing of the standard's.

constexpr std::string_view kEndings[] = {"NumberOfEntries", "Status", "Sent",        "Received",
                                         "LastChange",      "UpTime", "SerialNumber"};

// All parameters of these objects.
constexpr std::string_view kObjects[] = {"Device.DHCPv4.Server.Pool.{i}.Client.{i}",
                                         "Device.DHCPv4.Server.Pool.{i}.Client.{i}.IPv4Address.{i}",
                                         "Device.DHCPv6.Client.{i}.Server.{i}",
                                         "Device.DHCPv6.Server.Pool.{i}.Client.{i}",
                                         "Device.DHCPv6.Server.Pool.{i}.Client.{i}.IPv6Address.{i}",
                                         "Device.DSL.Line.{i}.TestParams",
                                         "Device.DeviceInfo.MemoryStatus",
                                         "Device.DeviceInfo.NetworkProperties",
                                         "Device.DeviceInfo.ProcessStatus",
                                         "Device.DeviceInfo.Processor.{i}",
                                         "Device.DeviceInfo.VendorConfigFile.{i}",
                                         "Device.DeviceInfo.VendorLogFile.{i}",
                                         "Device.Hosts.Host.{i}",
                                         "Device.Hosts.Host.{i}.IPv4Address.{i}",
                                         "Device.Hosts.Host.{i}.IPv6Address.{i}",
                                         "Device.PPP.Interface.{i}.IPv6CP",
                                         "Device.WiFi.EndPoint.{i}.Security"};

// Wherever they stand, each between two blanks.
constexpr std::string_view kNames =
    " AAL ACTINP ACTINPREIN ACTINPROCds ACTINPROCus ACTNDR ACTRAMODEds ACTRAMODEus ACTSNRMODEds ACTSNRMODEus "
    "ACTUALCE Active ActiveFirmwareImage ActualInterleavingDelay AdditionalHardwareVersion "
    "AdditionalSoftwareVersion AddressingType AliasBasedAddressing AllowedProfiles AssociationTime "
    "AuthenticationProtocol AuthenticationState AutoChannelSupported AutoConfig AvailableLanguages BootFailureLog "
    "ChannelLastSelectionReason ChannelsInUse CompressionProtocol ConnectionRequestURL CurrentBitRate "
    "CurrentLocalTime CurrentMRUSize CurrentOperatingChannelBandwidth CurrentProfile DHCPServer DeviceCategory "
    "DownstreamAttenuation DownstreamCurrRate DownstreamMaxBitRate DownstreamNoiseMargin DownstreamPower "
    "EEECapability EncryptionProtocol ExpirationTime FirmwareVersion FirstUseDate HTTPCompressionSupported "
    "HardwareVersion IANAPrefixes IAPDPrefixes IEEE80211hSupported INPREPORT INTLVBLOCK INTLVDEPTH IPv4Capable "
    "IPv6Capable LIMITMASK LPATH LSYMB LastConnectionError LastDataDownlinkRate LastDataUplinkRate "
    "LastStateTransmittedDownstream LastStateTransmittedUpstream LeaseTimeRemaining LineEncoding LineNumber "
    "LinkEncapsulationSupported LinkEncapsulationUsed LocalIPAddress Manufacturer ManufacturerOUI "
    "MaxSupportedAssociations MaxSupportedSSIDs ModelName ModelNumber ModesSupported NATDetected NFEC Noise "
    "OperatingStandard ParameterKey PortState PossibleChannels PowerManagementState Prefixes ProductClass RFEC "
    "RXTHRSHds RemoteIPAddress ResetCause ResetCounter Retransmissions SNRMROCds SNRMROCus SNRMpbds SNRMpbus "
    "SignalStrength SoftwareVersion StaticRoute StaticUser SuccessFailureCause SupportedConnReqMethods "
    "SupportedDataTransmitRates SupportedFrequencyBands SupportedLinkModes SupportedOperatingChannelBandwidths "
    "SupportedOptions SupportedProtocols SupportedStandards TRELLISds TRELLISus TransmitPowerSupported UPBOKLE "
    "UPBOKLEPb UPBOKLERPb US0MASK Upstream UpstreamAttenuation UpstreamCurrRate UpstreamMaxBitRate "
    "UpstreamNoiseMargin UpstreamPower XTSE XTSUsed XTUCANSIRev XTUCANSIStd XTUCCountry XTUCVendor XTURANSIRev "
    "XTURANSIStd XTURCountry XTURSerial XTURVendor XTURVersion ";

// There alone: elsewhere a parameter of the name may be set. In alphabetical order.
constexpr std::string_view kPaths[] = {"Device.ATM.Link.{i}.Name",
                                       "Device.Bridging.Bridge.{i}.Name",
                                       "Device.Bridging.Bridge.{i}.Port.{i}.Name",
                                       "Device.DHCPv4.Client.{i}.DNSServers",
                                       "Device.DHCPv4.Client.{i}.IPAddress",
                                       "Device.DHCPv4.Client.{i}.IPRouters",
                                       "Device.DHCPv4.Client.{i}.SubnetMask",
                                       "Device.DHCPv6.Client.{i}.DUID",
                                       "Device.DNS.Client.Server.{i}.Type",
                                       "Device.DNS.Relay.Forwarding.{i}.Type",
                                       "Device.DSL.Channel.{i}.LowerLayers",
                                       "Device.DSL.Channel.{i}.Name",
                                       "Device.DSL.Line.{i}.Name",
                                       "Device.DeviceInfo.Description",
                                       "Device.DeviceInfo.FirmwareImage.{i}.Name",
                                       "Device.DeviceInfo.FirmwareImage.{i}.Version",
                                       "Device.Ethernet.Interface.{i}.MACAddress",
                                       "Device.Ethernet.Interface.{i}.Name",
                                       "Device.Ethernet.Link.{i}.Name",
                                       "Device.Ethernet.VLANTermination.{i}.Name",
                                       "Device.Firewall.Type",
                                       "Device.Firewall.Version",
                                       "Device.IP.Interface.{i}.IPv6Address.{i}.Origin",
                                       "Device.IP.Interface.{i}.IPv6Prefix.{i}.Origin",
                                       "Device.IP.Interface.{i}.Name",
                                       "Device.IP.Interface.{i}.Type",
                                       "Device.NAT.PortMapping.{i}.Origin",
                                       "Device.PPP.Interface.{i}.IPCP.DNSServers",
                                       "Device.PPP.Interface.{i}.Name",
                                       "Device.PPP.Interface.{i}.PPPoE.SessionID",
                                       "Device.PTM.Link.{i}.MACAddress",
                                       "Device.PTM.Link.{i}.Name",
                                       "Device.Routing.Router.{i}.IPv4Forwarding.{i}.Origin",
                                       "Device.Routing.Router.{i}.IPv6Forwarding.{i}.Origin",
                                       "Device.USB.Interface.{i}.MACAddress",
                                       "Device.USB.Interface.{i}.MaxBitRate",
                                       "Device.USB.Interface.{i}.Name",
                                       "Device.WiFi.AccessPoint.{i}.AssociatedDevice.{i}.MACAddress",
                                       "Device.WiFi.EndPoint.{i}.SSIDReference",
                                       "Device.WiFi.Radio.{i}.MaxBitRate",
                                       "Device.WiFi.Radio.{i}.Name",
                                       "Device.WiFi.SSID.{i}.BSSID",
                                       "Device.WiFi.SSID.{i}.Name"};

template <size_t size>
bool has(const std::string_view (&sorted)[size], std::string_view text) {
    return std::binary_search(std::begin(sorted), std::end(sorted), text);
}

// With "{i}" in place of instance numbers.
std::string patternOf(std::string_view path) {
    std::string pattern;
    while (!path.empty()) {
        const std::string_view part = path.substr(0, path.find('.'));
        pattern += (pattern.empty() ? "" : ".") + (isNumber(part) ? std::string("{i}") : std::string(part));
        path.remove_prefix(std::min(part.size() + 1, path.size()));
    }
    return pattern;
}

} // namespace

bool isReadOnlyByStandard(std::string_view object, std::string_view name) {
    const bool ending = std::any_of(std::begin(kEndings), std::end(kEndings),
                                    [name](std::string_view one) { return name.ends_with(one); });
    if (ending || kNames.find(" " + std::string(name) + " ") != std::string_view::npos) {
        return true;
    }
    const std::string pattern = patternOf(withoutDot(object));
    return pattern.ends_with(".Stats") || has(kObjects, pattern) || has(kPaths, pattern + "." + std::string(name));
}

} // namespace pages::capture
