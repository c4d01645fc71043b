#pragma once

#include "controls/main_view.h"
#include "input/form_filling.h"
#include "input/form_view.h"
#include "model/case_history.h"

namespace varno {

/// What shows the case beside the input form.
class CaseBeside {
  public:
    virtual ~CaseBeside() = default;
    /// The record is another one: the line load editors show it, the sketch last. \throws RunTimeError for a case
    /// that cannot be drawn.
    virtual void showBeside() = 0;
};

/// Takes the last edits of the case back, and makes them again.
///
/// A step is a whole edit with all that follows it: a field that was left and the cells that its number was carried
/// forward to, a chosen row or option, a span more, another rule set, a line load. A step either way is an edit too:
/// it marks the case and draws the sketch.
class EditSteps {
  public:
    EditSteps(DesignCase& designCase, DocumentState& document, FormView& form, MainView& window,
              CaseFormFiller& filler, CaseBeside& beside)
        : case_(designCase), document_(document), form_(form), window_(window), filler_(filler),
          beside_(beside) {}

    /// Another case was opened.
    void start() { history_.start(now()); }
    /// An edit is over, or another one begins.
    void note();

    void back();
    void forward();

  private:
    CaseStep now() const;
    void show(const CaseStep* step);

    DesignCase& case_;
    DocumentState& document_;
    FormView& form_;
    MainView& window_;
    CaseFormFiller& filler_;
    CaseBeside& beside_;
    CaseHistory history_;
    bool showing_ = false;
};

/// One edit, from its event to its end, however it ends. What was changed before is an edit of its own.
class Edit {
  public:
    explicit Edit(EditSteps& steps) : steps_(steps) { steps_.note(); }
    ~Edit() { steps_.note(); }
    Edit(const Edit&) = delete;
    Edit& operator=(const Edit&) = delete;

  private:
    EditSteps& steps_;
};

} // namespace varno
