#include "tests/support/windows/SkippedTests.h"

#include <array>
#include <iostream>
#include <string>
#include <string_view>

#include <gtest/gtest.h>

#include "foundation/platform/windows/Win32.h"

namespace tervix::testing {
namespace {

constexpr const char* kNoLinks =
    "symbolic links take a privilege on Windows that users do not have by default";
constexpr const char* kNoPipes = "Windows has no pipes among the files of a folder";
constexpr const char* kNoDevices = "Windows has no device files in folders";
constexpr const char* kPermissions = "Windows knows the read-only attribute alone, no modes";
constexpr const char* kNoDrive =
    "a path that begins with a separator lacks its drive on Windows, so it is relative";
constexpr const char* kNoShare = "no network share to write to; see WindowsPaths for its paths";
constexpr const char* kOneCase =
    "names that differ in case only name one file on Windows; see WindowsPaths and CaseRename";
constexpr const char* kAllocators = "each DLL allocates by an operator new of its own";
constexpr const char* kLongNames =
    "Windows tells of a name too long what it tells of a missing one";
constexpr const char* kImpossibleNames = "no file can have such a name on Windows";
constexpr const char* kLongPaths = "no path can be as long on Windows";
constexpr const char* kTerminal = "the terminal that the test runs the tool on is one of Unix";
constexpr const char* kOwnReader = "the design reader beside the library comes first on Windows";
constexpr const char* kUncopyable =
    "pipes and devices are what no copy can be made of on Unix; see FileInUse for Windows";
constexpr const char* kArguments = "no argument on Windows can be as long, or be no text";
constexpr const char* kNoOverwrite =
    "the test's own std::filesystem::copy overwrites nothing with MinGW 12";
constexpr const char* kRoot = "Wine lets root write to read-only files";
constexpr const char* kNoLimits = "Windows limits neither the size of files nor their number";

struct SkippedTest {
  std::string_view program;
  std::string_view name; // with "*" for any text
  const char* reason;
};

constexpr SkippedTest kSkippedTests[] = {
    {"tervix_foundation_tests", "ResolvedAgainst.TakesAPathOfTheSystemAsItStands", kNoDrive},
    {"tervix_foundation_tests", "CreateFolder.NetworkPathMakesItsFolders", kNoShare},
    {"tervix_model_tests", "RunFile.ThatBeginsWithASlashStandsAsItIs", kNoDrive},
    {"tervix_operation_tests",
     "EachLayout/ArchiveOfSimulations.InsideAProfilesOwnFolderIsRefused/*", kNoLinks},
    {"tervix_operation_tests",
     "ProjectRenameOfFrontEndTwo.CarriesTheFilesFolderToTheNewProjectFile", kOneCase},
    {"tervix_project_tests", "SimReaders.MissAFolderAPipeAndALoop", kNoPipes},
    {"tervix_project_tests", "SimReaders.FollowALinkToAFile", kNoLinks},
    {"tervix_project_tests", "SimReaders.TellAFileThatTheSystemCannotOpen", kNoLimits},
    {"tervix_project_tests", "DesignOfProject.WithADriveIsNotLookedForInTheProject",
     kImpossibleNames},
    {"tervix_project_tests", "DesignOfProject.IsNoneWhenItIsNoFile", kNoPipes},
    {"tervix_project_tests", "ProfilesOfProject.AreThoseInTheSchematicFolders", kNoLinks},
    {"tervix_project_tests", "ProfilesOfProject.NeedAProfilesFolderThatCanBeOpened", kNoPipes},
    {"tervix_project_tests", "ProfilesOfProject.NeedMoreThanALinkToNothing", kNoLinks},
    {"tervix_project_tests", "ProjectFileInformation.TakesOnlyAFolderForTheFilesFolder", kNoLinks},
    {"tervix_project_tests", "EachLayout/InPlaceOfAFile.*Pipe", kNoPipes},
    {"tervix_project_tests", "EachLayout/InPlaceOfAFile.*LinkLoop", kNoLinks},
    {"tervix_project_tests", "EachLayout/InPlaceOfAFile.*LinkToNothing", kNoLinks},
    {"tervix_project_tests", "EachLayout/InPlaceOfAFile.*LinkToDevice", kNoLinks},
    {"tervix_project_tests", "EachLayout/DesignFrontEnd.TakesProfilesThatDifferInCaseOnlyAsOne/*",
     kOneCase},
    {"tervix_project_tests", "EachLayout/DesignFrontEnd.SurvivesAFilesFolderThatLoops/*", kNoLinks},
    {"tervix_performance_tests", "Seeds/OpeningAgainstWalk.GivesTheSameTree/*", kOneCase},
    {"tervix_check_tests", "CheckText.IsColouredOnATerminal", kTerminal},
    {"tervix_check_tests", "CheckText.TellsOnATerminalHowFarItIs", kTerminal},
    {"tervix_check_tests", "CheckUsage.FollowsTheFolderAboveALinkAsTheSystemDoes", kNoLinks},
    {"tervix_check_tests", "Forbidden.*", kPermissions},
    {"tervix_check_tests", "IncludeLines.ReadAFileOnceWhateverItsName", kNoLinks},
    {"tervix_check_tests", "HostileContent.MayBeLinksToThemselves", kNoLinks},
    {"tervix_check_tests", "HostileContent.MayBeNamesThatDriveATerminal", kImpossibleNames},
    {"tervix_check_tests", "HostileContent.MayBeFoldersWithinFolders", kLongPaths},
    {"tervix_check_tests", "Fix.LeavesFilesBehindLinksAlone", kNoLinks},
    {"tervix_check_tests", "EverythingBroken.IsFoundWorstFirst", kOneCase},
    {"tervix_check_tests", "All/OneThingBroken.*/NameInAnotherCase", kOneCase},
    {"tervix_check_tests", "All/OneThingBroken.*/FolderInAnotherCase", kOneCase},
    {"tervix_check_tests", "All/OneThingBroken.*/ProfileFolderInAnotherCase", kOneCase},
    {"tervix_check_tests", "Fix.RegistersNoProfileInAFolderOfAnotherCase", kOneCase},
    {"tervix_check_tests", "Fix.RegistersNothingInAProjectFileBehindALink", kNoLinks},
    {"tervix_check_tests", "FixOfAProjectBehindALink.*", kNoLinks},
    {"tervix_check_tests", "All/OneThingBroken.*/CaseTwins", kOneCase},
    {"tervix_check_tests", "All/OneThingBroken.*/ReservedName", kImpossibleNames},
    {"tervix_check_tests", "All/OneThingBroken.*/NameThatEndsWithADot", kImpossibleNames},
    {"tervix_check_tests", "All/OneThingBroken.*/NameThatEndsWithABlank", kImpossibleNames},
    {"tervix_check_tests", "All/OneThingBroken.*/NameWithAColon", kImpossibleNames},
    {"tervix_tool_tests", "All/Renamed.KeepsOldFilesWhenAskedTo/DesignSimulationOtherSchematic",
     kOneCase},
    {"tervix_tool_tests", "All/ChangedProfile.TakesEverythingBackWhenAFileCannotBeCopied/*",
     kUncopyable},
    {"tervix_tool_tests", "All/RefusedVariant.IsTextThatIsNotUtf8InAProjectFile/*",
     kImpossibleNames},
    {"tervix_tool_tests", "All/RefusedVariant.IsEveryOneOfAReadOnlyFile/*", kRoot},
    {"tervix_tool_tests",
     "All/Renamed.IsRefusedWhenAFileOfTheNewNameIsThere/DesignSimulationOtherSchematic", kOneCase},
    {"tervix_tool_tests",
     "All/Renamed.IsRefusedWhenAFileOfTheNewNameIsThere/ProjectSimulationProject", kOneCase},
    {"tervix_tool_tests", "All/Renamed.KeepsOldFilesWhenAskedTo/ProjectSimulationProject",
     kOneCase},
    {"tervix_check_tests", "Fix.IsUndoneFromTheSavedCopy", kNoOverwrite},
    {"tervix_check_tests", "FixOfFrontEnd1.RemovesBackupsAndFullPaths", kNoOverwrite},
    {"tervix_tool_tests", "NewName.IsSpeltOutInTheRefusal", kImpossibleNames},
    {"tervix_tool_tests", "FilesCommand.SpellsStrangeNamesOut", kImpossibleNames},
    {"tervix_tool_tests", "With/StrangeName.*/EscapeSequence", kImpossibleNames},
    {"tervix_tool_tests", "With/StrangeName.*/NewLine", kImpossibleNames},
    {"tervix_tool_tests", "With/StrangeName.*/BytesThatAreNoUtf8", kImpossibleNames},
    {"tervix_tool_tests", "With/StrangeName.IsSpeltOutOnATerminal/*", kTerminal},
    {"tervix_tool_tests", "FilesCommand.SetsOffWhatIsThereOnATerminal", kTerminal},
    {"tervix_tool_tests", "ColouredTree.*", kTerminal},
    {"tervix_tool_tests", "UnreadableFile.IsToldWhenLinksLeadNowhere", kNoLinks},
    {"tervix_tool_tests", "OpenedFile.MayLieAboveALinkedFolder", kNoLinks},
    {"tervix_tool_tests", "Journal.ThatReachesOutThroughALinkIsRefused", kNoLinks},
    {"tervix_tool_tests", "Journal.ThatRestoresAFileThroughALinkIsRefused", kNoLinks},
    {"tervix_tool_tests", "FilesCommand.FollowsALink", kNoLinks},
    {"tervix_tool_tests", "ArchiveOfFolders.HoldsWhatLinksLeadTo", kNoLinks},
    {"tervix_tool_tests", "ArchiveOfFolders.DoesNotFollowLinksInCircles", kNoLinks},
    {"tervix_tool_tests", "ArchiveOfFolders.OpensFromAProjectFileThatIsALink", kNoLinks},
    {"tervix_tool_tests", "All/ChangedSchematic.TakesEverythingBackWhenAFileCannotBeCopied/*",
     kUncopyable},
    {"tervix_tool_tests", "All/ArchivedReferences.FollowLinksOutOfTheProject/*", kNoLinks},
    {"tervix_tool_tests", "All/ArchivedReferences.TellOfFifosInPlaceOfAFile/*", kNoPipes},
    {"tervix_tool_tests", "All/ArchivedReferences.HoldQuotesAndControlCharacters/*",
     kImpossibleNames},
    {"tervix_tool_tests", "All/ArchivedSample.KeepsNamesWithQuotesAndControlCharacters/*",
     kImpossibleNames},
    {"tervix_tool_tests", "All/ArchivedSample.ShowsItsProgressOnATerminalOnly/*", kTerminal},
    {"tervix_tool_tests", "All/FailingArchive.IsRefusedInTheProjectsFolderReachedByALink/*",
     kNoLinks},
    {"tervix_tool_tests", "All/FailingArchive.IsRefusedInAFolderThatALinkMakesPartOfTheProject/*",
     kNoLinks},
    {"tervix_tool_tests", "All/FailingArchive.IsRefusedWhereALinkLeadsNowhere/*", kNoLinks},
    {"tervix_tool_tests", "All/FailingArchive.IsTakenBackWhicheverFileCannotBeCopied/*",
     kUncopyable},
    {"tervix_tool_tests", "All/FailingArchive.IsTakenBackWhenTheDiskIsFull/*", kNoLimits},
    {"tervix_tool_tests", "All/FailingArchive.IsRefusedUnderANameThatIsTooLong/*", kLongNames},
    {"tervix_tool_tests", "All/FailingArchive.IsTakenBackWhereverAPathGetsTooLong/*", kLongPaths},
    {"tervix_hostile_tests", "All/BadNewName.IsRefusedWhateverTheSystemPasses/*", kArguments},
    {"tervix_hostile_tests", "By/Trapped.*/*Link*", kNoLinks},
    {"tervix_report_tests", "ReportCommand.SeesThroughLinks", kNoLinks},
    {"tervix_report_tests", "ReportCommand.DoesNotWaitForAPipe", kNoPipes},
    {"tervix_report_tests", "ReportCommand.LeavesNothingOnAFullDisk", kNoLimits},
    {"tervix_report_tests", "ReportCommand.KeepsTheEarlierReportOnAFullDisk", kNoLimits},
    {"tervix_report_tests", "ReportCommand.IsSilentOnATerminalInTheEnd", kTerminal},
    {"tervix_report_tests", "With/HostileName.*/MarksOfHtml", kImpossibleNames},
    {"tervix_report_tests", "With/HostileName.*/CommentAndScript", kImpossibleNames},
    {"tervix_report_tests", "With/HostileName.*/EndOfTitle", kImpossibleNames},
    {"tervix_report_tests", "With/HostileName.*/ControlCharacters", kImpossibleNames},
    {"tervix_report_tests", "With/HostileName.*/BytesThatAreNoUtf8", kImpossibleNames},
    {"tervix_tool_tests", "FilesCommand.TakesAFolderOrAFifoForNoFile", kNoPipes},
    {"tervix_tool_tests", "ArchiveOfFolders.PassesOverWhatIsNoFileAndTells", kNoPipes},
    {"tervix_tool_tests", "UnreadableFile.IsToldWhenItsNameIsTooLong", kLongNames},
    {"tervix_tool_tests", "BrokenSample.SaysSoWhenTheDesignReaderGivesNoReason", kOwnReader},
    {"tervix_reader_tests", "EditSaveTest.FileThatMayNotBeWritten", kRoot},
    {"tervix_reader_tests", "FileKindTest.NameTooLong", kLongNames},
    {"tervix_reader_tests", "OutOfMemoryTest.*", kAllocators},
    {"tervix_reader_tests", "EditSaveTest.PermissionsStay", kPermissions},
    {"tervix_reader_tests", "EditSaveTest.LinkStaysALink", kNoLinks},
    {"tervix_reader_tests", "EditSaveTest.FullDiskLeavesTheFile", kNoLimits},
    {"tervix_reader_tests", "EditSaveTest.FolderThatMayNotBeWritten", kPermissions},
    {"tervix_reader_tests", "FileKindTest.PipeDoesNotBlock", kNoPipes},
    {"tervix_reader_tests", "FileKindTest.Device", kNoDevices},
    {"tervix_reader_tests", "FileKindTest.FileThatMayNotBeRead", kPermissions},
    {"tervix_reader_tests", "FileKindTest.FolderThatMayNotBeEntered", kPermissions},
    {"tervix_reader_tests", "FileKindTest.FileThatFailsWhileItIsRead", kNoDevices},
    {"tervix_reader_tests", "FileKindTest.LinkToAFileIsFollowed", kNoLinks},
};

bool matches(std::string_view pattern, std::string_view name) {
  const std::size_t star = pattern.find('*');
  if (star == std::string_view::npos)
    return pattern == name;
  if (name.substr(0, star) != pattern.substr(0, star))
    return false;
  for (std::size_t rest = star; rest <= name.size(); ++rest)
    if (matches(pattern.substr(star + 1), name.substr(rest)))
      return true;
  return false;
}

std::string nameOf(const ::testing::TestInfo& test) {
  return std::string(test.test_suite_name()) + "." + test.name();
}

std::string nameOfThisProgram() {
  std::array<char, MAX_PATH> buffer{};
  std::string path(buffer.data(), GetModuleFileNameA(nullptr, buffer.data(), MAX_PATH));
  path.erase(0, path.find_last_of("\\/") + 1);
  return path.substr(0, path.find('.'));
}

const SkippedTest* skippedTest(std::string_view program, const std::string& name) {
  for (const SkippedTest& skipped : kSkippedTests)
    if (skipped.program == program && matches(skipped.name, name))
      return &skipped;
  return nullptr;
}

class Skipper : public ::testing::EmptyTestEventListener {
  void OnTestStart(const ::testing::TestInfo& test) override {
    if (const SkippedTest* skipped = skippedTest(program_, nameOf(test)))
      GTEST_SKIP() << skipped->reason;
  }
  std::string program_ = nameOfThisProgram();
};

bool isThere(std::string_view pattern) {
  const auto& all = *::testing::UnitTest::GetInstance();
  for (int i = 0; i < all.total_test_suite_count(); ++i) {
    const ::testing::TestSuite& suite = *all.GetTestSuite(i);
    for (int j = 0; j < suite.total_test_count(); ++j)
      if (matches(pattern, nameOf(*suite.GetTestInfo(j))))
        return true;
  }
  return false;
}

} // namespace

bool skipTests() {
  ::testing::UnitTest::GetInstance()->listeners().Append(new Skipper);
  const std::string program = nameOfThisProgram();
  bool areThere = true;
  for (const SkippedTest& skipped : kSkippedTests) {
    if (skipped.program != program || isThere(skipped.name))
      continue;
    std::cerr << "There is no test " << skipped.name << " to skip.\n";
    areThere = false;
  }
  return areThere;
}

} // namespace tervix::testing
