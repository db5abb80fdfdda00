# SPDX-License-Identifier: MIT
# Targets in place of OpenWrt's own: prepare, options, staging, and PACKAGE.install.
define BuildPackage
.PHONY: $(1).install
$(1).install:
	$$(call Package/$(1)/install,$$(WORK)/packages/$(1))
endef

.PHONY: prepare options staging
prepare:
	$(call Build/Prepare)
options:
	@echo $(CMAKE_OPTIONS)
staging:
	$(call Build/InstallDev,$(WORK)/staging)
