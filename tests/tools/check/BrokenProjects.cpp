#include "tests/tools/check/BrokenProjects.h"

namespace tervix::testing {
namespace {

using Project = CheckedSample;

const std::string kTop = "amp-TervixFiles/TOP/";
const std::string kTranList = "amp-TervixFiles/TOP/tran/tran_profile.inc";
const std::string kDc = "amp-TervixFiles/BIAS/dc.sim";
const std::string kTwin = "amp-TervixFiles/TOP/Notes.txt";
const std::string kLongName(230, 'x');

// Adds a profile to amp-flat's project file, with the file it names.
void registerProfile(const Project& project, const std::string& file, const std::string& profile,
                     const std::string& schematic) {
  project.replace("amp.tvp", "\"./amp-TOP-ac.sim\"", "\"./amp-TOP-ac.sim\", \"./" + file + "\"");
  project.write(file, "ProfileName = \"" + profile + "\"\nRootSchematics = \"" + schematic +
                          "\"\nProjectFile = \"amp.tvp\"\n");
}

std::vector<BrokenProject> missingFiles() {
  return {
      {"DesignFile", kFlat, [](Project& p) { p.replace("amp.tvp", "amp.dsn", "gone.dsn"); },
       "missing-design amp.tvp:5"},
      {"NoDesignFile", kFlat, [](Project& p) { p.replace("amp.tvp", "\"amp.dsn\"", ""); },
       "missing-design amp.tvp"},
      {"SchematicFile", kFlat,
       [](Project& p) { p.replace("amp.tvp", "\"amp.dsn\"", "'top.sch', \"amp.dsn\""); },
       "missing-resource amp.tvp:5"},
      {"SecondDesignFile", kFlat,
       [](Project& p) { p.replace("amp.tvp", "\"amp.dsn\"", "\"amp.dsn\", \"b.dsn\""); },
       "missing-resource amp.tvp:5"},
      {"Profile", kSimulation, [](Project& p) { p.remove(kDc); }, "missing-profile amp.tvp:16"},
      {"Library", kFlat,
       [](Project& p) { p.replace("amp.tvp", "\"npn.lib\"", "\"npn.lib\", \"gone.lib\""); },
       "missing-library amp.tvp:10"},
      {"LibraryOfFrontEnd1", kWorkspaceFlat,
       [](Project& p) { p.replace("flt.tvp", "\"opamp.lib\"", "\"opamp.lib\", \"gone.lib\""); },
       "missing-library flt.tvp:8"},
      {"LibraryOfAProfile", kSimulation,
       [](Project& p) { p.append(kTranList, ".LIB\t\"models\\gone.lib\" \n"); },
       "missing-library " + kTranList + ":5"},
      {"Include", kFlat,
       [](Project& p) { p.replace("amp.tvp", "\"supply.inc\"", "\"supply.inc\", 'a\\gone.inc'"); },
       "missing-include amp.tvp:12"},
      {"IncludeOfAProfile", kWorkspace,
       [](Project& p) { p.append("profiles/tran/tran_profile.inc", ".INC \"gone.inc\"\n"); },
       "missing-include profiles/tran/tran_profile.inc:4"},
      {"Stimulus", kFlat,
       [](Project& p) { p.replace("amp.tvp", "\"sine.stl\"", "\"sine.stl\",\n\"gone.stl\""); },
       "missing-stimulus amp.tvp:12"},
      {"OutputFile", kFlat,
       [](Project& p) { p.replace("amp.tvp", "./amp-TOP-tran.out", "./gone.out"); },
       "missing-output amp.tvp:6"},
      {"IncludeLine", kFlat,
       [](Project& p) { p.write("npn.lib", "* models\n.lib 'gone.lib' tt\n"); },
       "unresolved-include npn.lib:2"},
      {"IncludeLineFarBelow", kFlat,
       [](Project& p) {
         p.append("npn.lib", ".inc \"deep/a.inc\"\n");
         p.write("deep/a.inc", "R1 1 0 1k\n.STMLIB b.stl\n");
         p.write("deep/b.stl", ".Lib \"..\\gone.lib\"\n");
       },
       "unresolved-include deep/b.stl:1"},
      {"NameInAnotherCase", kFlat,
       [](Project& p) { p.replace("amp.tvp", "\"npn.lib\"", "\"NPN.lib\""); },
       "case-differs amp.tvp:10"},
      {"FolderInAnotherCase", kFlat,
       [](Project& p) {
         p.write("Models/x.lib", "");
         p.append("npn.lib", ".inc models\\X.lib\n");
       },
       "case-differs npn.lib:3"},
      {"ProfileFolderInAnotherCase", kWorkspace,
       [](Project& p) { p.rename("profiles/noise", "profiles/Noise"); },
       "case-differs profiles/Noise"},
      {"FolderInPlaceOfAFile", kFlat,
       [](Project& p) {
         p.replace("amp.tvp", "\"npn.lib\"", "\"npn.lib\", \"folder.lib\"");
         p.makeFolder("folder.lib");
       },
       "unreadable-file amp.tvp:10"},
  };
}

// Text of which the file "./tran.inc" is there.
void appendToTranList(Project& project, const char* text) {
  project.append(kTranList, text);
  project.write(kTop + "tran/tran.inc", "");
}

std::vector<BrokenProject> brokenProfiles() {
  return {
      {"ProfileWithoutItsName", kSimulation,
       [](Project& p) { p.replace(kDc, "ProfileName", "Name"); }, "invalid-profile " + kDc},
      {"ProfileOfNoSchematic", kFlat,
       [](Project& p) { p.replace("amp-TOP-ac.sim", "= \"TOP\"", "= \"\""); },
       "invalid-profile amp-TOP-ac.sim"},
      {"ProfileWithoutDesign", kWorkspaceFlat,
       [](Project& p) { p.replace("ac.sim", "DesignFile = \"flt\"", "DesignFile = \"\""); },
       "invalid-profile ac.sim"},
      {"ProfileFoundInAFolder", kWorkspace,
       [](Project& p) { p.replace("profiles/noise.sim", "RootSchematics", "Root"); },
       "invalid-profile profiles/noise.sim"},
      {"SecondFileOfAProfile", kFlat,
       [](Project& p) { registerProfile(p, "copy.sim", "AC", "TOP"); }, "same-profile copy.sim"},
      {"UnknownSchematic", kFlat,
       [](Project& p) { registerProfile(p, "amp-OLD-x.sim", "x", "OLD"); },
       "unknown-schematic amp-OLD-x.sim"},
      {"MisplacedProfile", kSimulation,
       [](Project& p) { p.replace(kTop + "ac.sim", "= \"ac\"", "= \"sweep\""); },
       "misplaced-profile " + kTop + "ac.sim"},
      {"MisplacedFlatProfile", kFlat,
       [](Project& p) { registerProfile(p, "amp-TOP-old.sim", "new", "TOP"); },
       "misplaced-profile amp-TOP-old.sim"},
      {"AnotherProfileFile", kWorkspace,
       [](Project& p) { p.replace("profiles/tran.sim", "\"tran.sim\"", "\"old.sim\""); },
       "key-disagrees profiles/tran.sim:3"},
      {"AnotherProjectFile", kFlat,
       [](Project& p) { p.replace("amp-TOP-ac.sim", "\"amp.tvp\"", "\"old.tvp\""); },
       "key-disagrees amp-TOP-ac.sim:5"},
      {"AnotherNetlist", kSimulation,
       [](Project& p) { p.replace(kDc, "\"dc.cir\"", "\"old.cir\""); },
       "key-disagrees " + kDc + ":7"},
      {"KeyTwice", kSimulation, [](Project& p) { p.append(kDc, "outfile = \"./dc/dc.out\"\n"); },
       "repeated-key " + kDc + ":13"},
      {"UnregisteredProfile", kSimulation,
       [](Project& p) { p.replace("amp.tvp", ", \"./amp-TervixFiles/BIAS/dc.sim\"", ""); },
       "unregistered-profile " + kDc},
      {"UnregisteredFlatProfile", kFlat,
       [](Project& p) { p.replace("amp.tvp", ", \"./amp-TOP-ac.sim\"", ""); },
       "unregistered-profile amp-TOP-ac.sim"},
      {"UnregisteredProfileInAFolderOfAnother", kSimulation,
       [](Project& p) { p.write(kTop + "ac/old.sim", p.content(kTop + "ac.sim")); },
       "unregistered-profile " + kTop + "ac/old.sim"},
      {"RegisteredTwice", kFlat,
       [](Project& p) {
         p.replace("amp.tvp", "\"./amp-TOP-ac.sim\"", "\"./amp-TOP-ac.sim\", 'amp-TOP-ac.sim'");
       },
       "listed-twice amp.tvp:15"},
      {"LibraryListedTwice", kFlat,
       [](Project& p) { p.replace("amp.tvp", "\"npn.lib\"", "\"npn.lib\", \"./npn.lib\""); },
       "listed-twice amp.tvp:10"},
      {"SchematicListedTwice", kFlat,
       [](Project& p) {
         p.write("amp.dsn", "[Design]\nSchematics = [\"TOP\",\n\"TOP\"]\nRoot=\"TOP\"");
       },
       "listed-twice amp.dsn:3"},
      {"EntryThatALoadDrops", kSimulation,
       [](Project& p) { p.replace(kTranList, "load.inc", "LOAD.INC"); },
       "dropped-entry " + kTranList + ":2"},
      {"EntryOfAnotherKind", kWorkspace,
       [](Project& p) { p.append("profiles/tran/tran_profile.inc", ".lib \"load.inc\"\n"); },
       "dropped-entry profiles/tran/tran_profile.inc:4"},
      {"EntryWithoutQuotes", kSimulation,
       [](Project& p) { p.append(kTranList, ".INC load.inc\n"); },
       "dropped-entry " + kTranList + ":5"},
      {"EntryWithoutItsSecondQuote", kSimulation,
       [](Project& p) { appendToTranList(p, ".INC \"../../../local.inc\n.INC \"./tran.inc\"\n"); },
       "dropped-entry " + kTranList + ":5"},
      {"LineThatALoadDrops", kSimulation,
       [](Project& p) { p.append(kTranList, "* a comment\n\n"); },
       "dropped-line " + kTranList + ":5"},
      {"TextBehindAnEntry", kSimulation,
       [](Project& p) { appendToTranList(p, ".INC \"./tran.inc\" ; a comment\n"); },
       "dropped-line " + kTranList + ":5"},
      {"EntriesInOneLine", kSimulation,
       [](Project& p) { appendToTranList(p, ".INC \"./tran.inc\"\r.INC \"./more.inc\"\r"); },
       "dropped-entry " + kTranList + ":5"},
      {"EntryBehindAnother", kSimulation,
       [](Project& p) { appendToTranList(p, ".INC \"./tran.inc\" .LIB \"more.lib\"\n"); },
       "dropped-entry " + kTranList + ":5"},
      {"EntryBehindBlanks", kSimulation,
       [](Project& p) { p.append(kTranList, "  .inc \"more.inc\"\n"); },
       "dropped-entry " + kTranList + ":5"},
      {"EntryBehindAByteOrderMark", kSimulation,
       [](Project& p) { p.append(kTranList, "\xef\xbb\xbf.inc \"more.inc\"\n"); },
       "dropped-entry " + kTranList + ":5"},
      {"QuoteBehindAnEntry", kSimulation,
       [](Project& p) { appendToTranList(p, ".INC \"./tran.inc\" ; with 5\" of cable\n"); },
       "dropped-line " + kTranList + ":5"},
  };
}

std::vector<BrokenProject> leftovers() {
  return {
      {"BackupOfNothing", kSimulation, [](Project& p) { p.write(kTop + "x.sim.bak", "x"); },
       "lost-original " + kTop + "x.sim.bak"},
      {"BackupOfAnEmptyFile", kWorkspace,
       [](Project& p) {
         p.write("profiles/tran/x.stl", "");
         p.write("profiles/tran/x.stl.BAK", "x");
       },
       "lost-original profiles/tran/x.stl.BAK"},
      {"StaleBackup", kSimulation, [](Project& p) { p.write(kTop + "ac.sim.bak", "x"); },
       "stale-backup " + kTop + "ac.sim.bak"},
      {"StaleBackupOfFrontEnd1", kWorkspaceFlat, [](Project& p) { p.write("ac.sim.bak", "x"); },
       "stale-backup ac.sim.bak"},
      {"FileOfAnInterruptedChange", kSimulation,
       [](Project& p) { p.write(kTop + "tran/.tervix-12", ""); },
       "interrupted-change " + kTop + "tran/.tervix-12"},
      {"JournalOfAnInterruptedChange", kFlat,
       [](Project& p) { p.write(".amp.tvp.tervix-change", "{}"); },
       "interrupted-change .amp.tvp.tervix-change"},
      {"ProfileFolderAlone", kSimulation,
       [](Project& p) { p.write(kTop + "old/old_profile.inc", ""); },
       "orphan-folder " + kTop + "old"},
      {"RenamedProfileFolder", kWorkspace,
       [](Project& p) { p.rename("profiles/noise", "profiles/hiss"); },
       "orphan-folder profiles/hiss"},
      {"CopiedProfileFolder", kSimulation,
       [](Project& p) { p.write(kTop + "tran - Copy/tran_profile.inc", ""); },
       "orphan-folder " + kTop + "tran - Copy"},
      {"EmptyProfileFolder", kWorkspace, [](Project& p) { p.makeFolder("profiles/old"); },
       "orphan-folder profiles/old"},
      {"SchematicFolderAlone", kSimulation,
       [](Project& p) { p.write("amp-TervixFiles/OLD/OLD.net", ""); },
       "orphan-folder amp-TervixFiles/OLD"},
      {"FilesFolderAlone", kFlat, [](Project& p) { p.makeFolder("old-TervixFiles"); },
       "orphan-folder old-TervixFiles"},
      {"FormerNameInAFolder", kSimulation,
       [](Project& p) {
         p.write(kTop + "ac/old.dat", "");
         p.write(kTop + "ac/old_profile.inc", "");
       },
       "former-name " + kTop + "ac/old.dat"},
      {"FormerNameBesideTheOthers", kFlat,
       [](Project& p) { p.write("amp-TOP-old.sim.cir", "title\n"); },
       "former-name amp-TOP-old.sim.cir"},
      {"FormerNameOfFrontEnd1", kWorkspaceFlat, [](Project& p) { p.write("old.sim.cir", ""); },
       "former-name old.sim.cir"},
  };
}

std::vector<BrokenProject> names() {
  return {
      {"CaseTwins", kSimulation,
       [](Project& p) {
         p.write(kTop + "notes.txt", "");
         p.write(kTwin, "");
       },
       "case-twins " + kTop + "notes.txt"},
      {"CaseTwinsOfSchematics", kFlat,
       [](Project& p) { p.replace("amp.dsn", "\"TOP\"]", "\"TOP\", \"top\"]"); },
       "case-twins amp.dsn:3"},
      {"ReservedName", kSimulation, [](Project& p) { p.write(kTop + "tran/Aux.txt", ""); },
       "windows-name " + kTop + "tran/Aux.txt"},
      {"NameThatEndsWithADot", kWorkspaceFlat, [](Project& p) { p.write("notes.", ""); },
       "windows-name notes."},
      {"NameThatEndsWithABlank", kWorkspaceFlat, [](Project& p) { p.write("notes ", ""); },
       "windows-name notes "},
      {"NameWithAColon", kFlat, [](Project& p) { p.write("a:b", ""); }, "windows-name a:b"},
      {"LongPath", kWorkspace, [](Project& p) { p.write("profiles/tran/" + kLongName, ""); },
       "long-path profiles/tran/" + kLongName},
      {"ProfileNameWithADot", kFlat,
       [](Project& p) { registerProfile(p, "amp-TOP-v1.2.sim", "v1.2", "TOP"); },
       "dotted-name amp-TOP-v1.2.sim"},
      {"DataFileWithADot", kFlat,
       [](Project& p) { p.replace("amp-TOP-ac.sim", "amp-TOP-ac.dat", "amp-TOP-ac.1.dat"); },
       "dotted-name amp-TOP-ac.sim:8"},
      {"SchematicNameWithADot", kFlat,
       [](Project& p) { p.replace("amp.dsn", "\"TOP\"]", "\"TOP\", \"A.B\"]"); },
       "dotted-name amp.dsn:3"},
      {"ProjectNotNamedAfterItsFolder", kWorkspace,
       [](Project& p) { p.renameProject("preamp.tvp"); }, "misnamed-project preamp.tvp"},
      {"UnknownRoot", kFlat,
       [](Project& p) { p.replace("amp.dsn", "Root = \"TOP\"", "Root = \"TIP\""); },
       "unknown-root amp.dsn:4"},
      {"UnknownActiveProfile", kFlat,
       [](Project& p) { p.replace("amp.tvp", "TOP-tran\"", "TOP-x\""); },
       "unknown-active amp.tvp:16"},
      {"ActiveProfileOfAnotherSchematic", kSimulation,
       [](Project& p) { p.replace("amp.tvp", "\"TOP-tran\"", "\"BIAS-dc\""); },
       "unknown-active amp.tvp:17"},
  };
}

std::vector<BrokenProject> references() {
  return {
      {"FullPath", kFlat,
       [](Project& p) { p.replace("amp.tvp", "\"npn.lib\"", "\"" + p.path("npn.lib") + "\""); },
       "absolute-path amp.tvp:10"},
      {"FullPathInAProfile", kSimulation,
       [](Project& p) { p.replace(kDc, "./dc/dc.dat", p.path("amp-TervixFiles/BIAS/dc/dc.dat")); },
       "absolute-path " + kDc + ":8"},
      {"FullPathInAnIncludeList", kWorkspace,
       [](Project& p) {
         p.replace("profiles/tran/tran_profile.inc", "..\\..\\generator.inc",
                   p.path("generator.inc"));
       },
       "absolute-path profiles/tran/tran_profile.inc:1"},
      {"FullPathInANetlist", kFlat,
       [](Project& p) { p.append("npn.lib", ".inc '" + p.path("supply.inc") + "'\n"); },
       "absolute-path npn.lib:3"},
      {"WayOutOfTheProject", kFlat,
       [](Project& p) {
         p.write("../shared.lib", "");
         p.replace("amp.tvp", "\"npn.lib\"", "\"npn.lib\", \"../shared.lib\"");
       },
       "outside-reference amp.tvp:10"},
      {"DataOutsideTheProject", kSimulation,
       [](Project& p) { p.replace(kDc, "./dc/dc.out", "/nowhere/dc.out"); },
       "outside-reference " + kDc + ":9"},
      {"CircleOfIncludes", kFlat,
       [](Project& p) {
         p.append("npn.lib", "\n.lib a.lib\n");
         p.write("a.lib", "* a\n.lib b.lib\n");
         p.write("b.lib", ".include ./npn.lib\n");
       },
       "include-cycle b.lib:1"},
      {"MistakeInTheProjectFile", kSimulation,
       [](Project& p) { p.replace("amp.tvp", "Files = [\"amp.dsn\"]", "Files = 3"); },
       "project-unopenable amp.tvp:5"},
      {"MistakeInTheDesignFile", kFlat,
       [](Project& p) { p.replace("amp.dsn", "Root = \"TOP\"", "Root = TOP"); },
       "project-unopenable amp.dsn:4"},
      {"NoProfilesFolder", kWorkspace, [](Project& p) { p.remove("profiles"); },
       "project-unopenable amp.tvp"},
  };
}

} // namespace

const std::vector<BrokenProject>& brokenProjects() {
  static const std::vector<BrokenProject> all = [] {
    std::vector<BrokenProject> joined;
    for (const auto& part : {missingFiles(), brokenProfiles(), leftovers(), names(), references()})
      joined.insert(joined.end(), part.begin(), part.end());
    return joined;
  }();
  return all;
}

std::ostream& operator<<(std::ostream& stream, const BrokenProject& broken) {
  return stream << broken.name;
}

} // namespace tervix::testing
