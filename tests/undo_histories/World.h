#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "automation/Trace.h"
#include "excel/Application.h"
#include "forms/ScriptedPresenter.h"
#include "host/objects/HostSession.h"
#include "undo_histories/Dice.h"
#include "undo_histories/FaultyExcel.h"

namespace kestrune::histories {

// An Excel with a workbook full of everything that undo has to give back. The same for the same seed.
class World {
  public:
    explicit World(std::uint64_t seed);

    [[nodiscard]] host::Workbook& workbook() const { return *workbook_; }
    [[nodiscard]] const excel::Application& application() const { return application_; }

  private:
    host::HostSession session_;
    host::Workbook* workbook_ = nullptr;
    excel::Application application_;
};

// Says yes to everything but to going on without undo.
class Careful : public forms::ScriptedPresenter {
    forms::MsgBoxResult answer_to(const forms::Message& message) override;
};

// The add-in in front of a world, with all that it says.
class AddIn {
  public:
    // A fault, if any, stands between the add-in and Excel. What it is given outlives it.
    AddIn(const World& world, Fault* fault);
    ~AddIn();
    AddIn(const AddIn&) = delete;
    AddIn& operator=(const AddIn&) = delete;

    [[nodiscard]] automation::Object& global() const { return *global_; }
    [[nodiscard]] automation::Object& undo_redo() const { return *undo_redo_; }
    // How many steps can be undone and redone.
    [[nodiscard]] std::size_t undoable() const { return count("UndoHistory"); }
    [[nodiscard]] std::size_t redoable() const { return count("RedoHistory"); }
    [[nodiscard]] const std::vector<forms::Message>& messages() const { return presenter_.messages(); }

  private:
    [[nodiscard]] std::size_t count(std::string_view history) const;

    Careful presenter_;
    automation::Trace trace_;
    automation::ObjectRef entry_;
    automation::ObjectRef global_;
    automation::ObjectRef undo_redo_;
};

// What the workbooks of two worlds differ in, as `kestrune diff` tells it.
std::vector<std::string> differences(const World& before, const World& after);

}  // namespace kestrune::histories
