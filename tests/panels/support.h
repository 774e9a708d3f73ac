/// What the tests of the panels share: drawings, the module as programs have it, the selection.
#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QString>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <common/selection_steps.h>
#include <database/database.h>
#include <editor/command_line.h>

namespace panels_test {

/// A drawing is the working one, the module is loaded, and what is printed is kept.
class PanelsTest : public testing::Test
{
  protected:
    PanelsTest();
    ~PanelsTest() override;

    /// Opens a drawing of examples/, or one by its whole path.
    void open(const std::filesystem::path& file);
    void openPlan() { open("floor_plan.dxf"); }
    void openKinds() { open("all_basic_kinds_r2010.dxf"); }
    /// Opens a drawing of that many lines on the layers A and B in turn, each of a length of its
    /// own, and every tenth a circle instead.
    void openMany(int count);

    /// All of the current space, or those with one display name, or one by its handle.
    Ids everything() const;
    Ids ofType(const std::wstring& displayName) const;
    KdDbObjectId entity(std::uint64_t handle) const;

    static Ids selection();
    static void select(const Ids& ids);
    static std::vector<std::string> handles(const Ids& ids);
    /// What the program kwselect prints; its exit status must be 0 or 1.
    static QStringList kwselect(const QString& shellLine);

    std::filesystem::path folder() const { return m_folder.path().toStdString(); }
    std::filesystem::path file(const std::string& name) const { return folder() / name; }
    static std::string content(const std::filesystem::path& file);

    Module module;
    std::unique_ptr<KdDbDatabase> drawing;
    std::filesystem::path drawingFile;
    std::vector<std::wstring> printed;

  private:
    QTemporaryDir m_folder;
    KdutPrintSink m_sink;
};

/// Runs the event loop until the condition holds, for two minutes at most.
void waitFor(const std::function<bool()>& condition);

} // namespace panels_test
