# SPDX-License-Identifier: MIT
# The little of OpenWrt's build system that the recipe relies on: enough to run its sections.
all:
INSTALL_DIR:=install -d -m0755
INSTALL_BIN:=install -m0755
CP:=cp -fpR
PKG_BUILD_DIR:=$(WORK)/build
PKG_INSTALL_DIR:=$(WORK)/stage
