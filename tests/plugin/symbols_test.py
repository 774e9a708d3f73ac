#!/usr/bin/env python3
"""Holds the symbols of the module against what a host may see of it and what it may need."""

import re
import subprocess
import sys
import unittest

EXPORTED = {
    # the entry functions
    "DllMain",
    "QSelectInit",
    "QSelectUnInit",
    "selectCmd",
    "selectCmdEx",
    "QSelectCmd",
    "QSelectDialog",
    # for programs without the dialog
    "QSelectRun",
    "QSelectListTypes",
    "QSelectListEntities",
    "QSelectListProperties",
    "QSelectListOperators",
    "QSelectHoldDrawing",
    "QSelectTolerance",
    "QSelectLastRequest",
    # for programs that show what the dialog would select
    "QSelectWatchDialog",
    "QSelectPreview",
    # globals
    "gComboValues",
    "theArxDLL",
    "g_pstrMulti",
    "CKdModuleResourceOverride::m_extensionModule",
    # helpers that other modules use
    "KdadNewResbuf(int)",
    "PropListUtil::findLineTypeIdByName(KdString&)",
    "strings_i_compare(wchar_t const*, wchar_t const*)",
    "ic_setext(wchar_t*, wchar_t*)",
    "ic_trim(wchar_t*, wchar_t*)",
    "ic_getext(wchar_t*, wchar_t*, unsigned long)",
}

# What providers from outside derive from and answer with.
EXPORTED |= {
    "KdDbEntityPE::FillLineWeightList(CArray<KdDbEntityPE::lwUnit, KdDbEntityPE::lwUnit const&>&)",
    "KdDbEntityPE::GetLayer(KdDbEntity const*, ResBuf*&, bool) const",
    "KdDbEntityPE::PropertyCount(KdDbEntity const*, KdArray<KdString>&, KdArray<bool>&)",
    "KdDbEntityPE::PropertyValueGet(KdDbEntity const*, KdString, ResBuf*&, bool, bool)",
    "KdDbEntityPE::desc()",
    "KdDbEntityPE::getEntityTotalArea(KdDbEntity const*, double&) const",
    "KdDbEntityPE::getEntityTotalLength(KdDbEntity const*, double&) const",
    "KdDbEntityPE::gpDesc",
    "KdDbEntityPE::isA() const",
    "KdDbEntityPE::of(KdDbEntity const&)",
    "KdDbEntityPE::rxInit()",
    "KdDbEntity_Extension::desc()",
    "KdDbEntity_Extension::gpDesc",
    "KdDbEntity_Extension::isA() const",
    "KdDbEntity_Extension::rxInit()",
    "ResBuf::ResBuf()",
    "ResBuf::clearValue()",
    "ResBuf::desc()",
    "ResBuf::getBool() const",
    "ResBuf::getColor() const",
    "ResBuf::getDouble() const",
    "ResBuf::getInt16() const",
    "ResBuf::getInt32() const",
    "ResBuf::getInt8() const",
    "ResBuf::getPoint2d() const",
    "ResBuf::getPoint3d() const",
    "ResBuf::getString() const",
    "ResBuf::gpDesc",
    "ResBuf::insert(ResBuf*)",
    "ResBuf::last(ResBuf const*)",
    "ResBuf::newRb(int)",
    "ResBuf::newRb(int, wchar_t const*)",
    "ResBuf::relRb(ResBuf*&)",
    "ResBuf::rxInit()",
    "ResBuf::s_recordsInUse",
    "ResBuf::setBool(bool)",
    "ResBuf::setColor(KdCmColor const&)",
    "ResBuf::setDouble(double)",
    "ResBuf::setInt16(short)",
    "ResBuf::setInt32(int)",
    "ResBuf::setInt8(signed char)",
    "ResBuf::setPoint2d(KdGePoint2d const&)",
    "ResBuf::setPoint3d(KdGePoint3d const&)",
    "ResBuf::setRestype(int)",
    "ResBuf::setString(KdString const&)",
    "ResBuf::text() const",
    "ResBuf::~ResBuf()",
    "typeinfo for KdDbEntityPE",
    "typeinfo for KdDbEntity_Extension",
    "typeinfo for ResBuf",
    "vtable for KdDbEntityPE",
    "vtable for KdDbEntity_Extension",
    "vtable for ResBuf",
}

# Settings of the profile, paths, and base classes that hosts derive from.
EXPORTED |= {
    "AbstractFileProcessor::~AbstractFileProcessor()",
    "FilePath::FilePath(CStdStr<wchar_t> const&)",
    "FilePath::FindFiles(AbstractFileProcessor&, wchar_t const*) const",
    "FilePath::GetFirstPath() const",
    "FileString::GetDirectory() const",
    "FileString::GetDrive() const",
    "FileString::GetExtension() const",
    "FileString::GetFilename() const",
    "FileString::ModuleFile()",
    "FileString::ModulePath()",
    "GetCurrentRegistryProfileName(wchar_t*, int)",
    "KdFont::calculateCharacterBox(wchar_t, KdGePoint2d&, KdGePoint2d&) const",
    "KdFont::getFontData(unsigned char*, unsigned int) const",
    "KdFont::getOverlinePos(double) const",
    "KdFont::getStrikelinePos(double) const",
    "KdFont::getUnderlinePos(double) const",
    "KdFont::isShxFont() const",
    "KdFont::isSupportReorder() const",
    "KdFont::isValidLeadByte(unsigned char) const",
    "KdFont::lastScale() const",
    "KdFont::supportsVerticalMode() const",
    "KdFont::~KdFont()",
    "KwExceptionWithMsg::~KwExceptionWithMsg()",
    "KwLoadKey(RegistryKey*, CStdStr<wchar_t>, CStdStr<wchar_t>&)",
    "KwStreamBuf::copyFrom(KwStreamBuf&, unsigned int)",
    "KwStreamBuf::copyTo(KwStreamBuf&, unsigned int)",
    "KwStreamBuf::currentStreamBufPosition() const",
    "KwStreamBuf::getBytes(unsigned char*, unsigned int)",
    "KwStreamBuf::isEOS() const",
    "KwStreamBuf::readBytes(unsigned char*, unsigned int)",
    "KwStreamBuf::readBytes(unsigned int, std::function<bool (unsigned char const*, unsigned int)> const&)",
    "KwStreamBuf::rewind()",
    "KwStreamBuf::writeBytes(unsigned char const*, unsigned int)",
    "KwStreamBuf::~KwStreamBuf()",
    "PreferenceKey::FlushKey(RegistryKey*, CStdStr<wchar_t> const&)",
    "PreferenceKey::Init(RegistryKey*, CStdStr<wchar_t> const&, bool)",
    "PreferenceKey::PreferenceKey(RegistryKey*, CStdStr<wchar_t> const&, bool)",
    "PreferenceKey::Reload(RegistryKey*, CStdStr<wchar_t> const&, bool)",
    "PreferenceKey::m_currentProfilePath",
    "SearchResult::ProcessFile(wchar_t const*, WIN32_FIND_DATAW&)",
    "SearchSystemFile(wchar_t const*, wchar_t*, wchar_t const*)",
    "SystemPaths::LoadFromRegistry()",
    "SystemPaths::LoadKey(RegistryKey*, CStdStr<wchar_t>, CStdStr<wchar_t>&)",
    "SystemPaths::SaveKey(RegistryKey*, CStdStr<wchar_t>, CStdStr<wchar_t>)",
    "SystemPaths::SaveToRegistry() const",
    "SystemPaths::SystemPaths()",
    "SystemPaths::searchPath() const",
    "ValidateLocation(CStdStr<wchar_t>)",
    "addPathToSrchpath(CStdStr<wchar_t>&, CStdStr<wchar_t> const&)",
    "getDefaultTemplatePath(CStdStr<wchar_t>&)",
    "getRegCurrentProfileRoot(wchar_t*, int)",
    "getRegistryProfilesRoot(wchar_t*, int)",
    "typeinfo for AbstractFileProcessor",
    "typeinfo for KdFont",
    "typeinfo for KwExceptionWithMsg",
    "typeinfo for KwStreamBuf",
    "typeinfo for SearchResult",
    "vtable for AbstractFileProcessor",
    "vtable for KdFont",
    "vtable for KwExceptionWithMsg",
    "vtable for KwStreamBuf",
    "vtable for SearchResult",
}

# Besides the host's libraries: Qt, the languages' and the system's, and those of the sanitizers.
NEEDED = re.compile(
    r"lib(kwhost|kwhostui|Qt5\w+|stdc\+\+|gcc_s|c|m|asan|ubsan)\.so[.\d]*|ld-linux-[\w-]+\.so\.\d+")

MODULE = ""


def output(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


class Exports(unittest.TestCase):
    def test_are_those_that_hosts_call_and_no_others(self):
        lines = output("nm", "-D", "-C", "--defined-only", MODULE).splitlines()
        exported = {line.split(" ", 2)[2] for line in lines}
        self.assertEqual(exported, EXPORTED)


class Imports(unittest.TestCase):
    def test_come_from_the_host_the_widgets_and_the_system_alone(self):
        needed = re.findall(r"\(NEEDED\).*\[(.*)\]", output("readelf", "-d", MODULE))
        self.assertIn("libkwhost.so", needed)
        self.assertEqual([name for name in needed if not NEEDED.fullmatch(name)], [])

    def test_are_all_found_there(self):
        found = subprocess.run(["ldd", "-r", MODULE], capture_output=True, text=True)
        unresolved = [line for line in (found.stdout + found.stderr).splitlines()
                      if "undefined symbol" in line or "not found" in line]
        # The runtime of the sanitizers comes with the program.
        self.assertEqual([line for line in unresolved if not re.search(r"__(a|ub)san", line)], [])


if __name__ == "__main__":
    MODULE = sys.argv.pop(1)
    unittest.main()
