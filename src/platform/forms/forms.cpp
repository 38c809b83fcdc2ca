#include "platform/forms/forms.h"

#include <QApplication>
#include <QWidget>
#include <algorithm>

#include "platform/forms/form.h"

namespace ratanka {

Forms::Forms(Ticks& ticks)
    : state_(ticks, [this] {
        if (!anyVisible()) endProgram();
      }) {}

Forms::~Forms() {
  forms_.clear();
  // Windows wait for their last event to pass; there is none to come.
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void Forms::setMaker(FormName name, Maker maker) { makers_[name] = std::move(maker); }

void Forms::show(FormName name) { loadAnd(name, &Form::bringUp); }

void Forms::showModal(FormName name) { loadAnd(name, &Form::runModally); }

void Forms::hide(FormName name) {
  if (const auto form = find(name)) form->hide();
}

void Forms::unload(FormName name) {
  if (const auto form = find(name)) form->unload();
}

void Forms::drop(FormName name) {
  const auto form = find(name);  // stays until its last handler has returned
  if (!form) return;
  form->unload();
  forms_.erase(name);
}

bool Forms::isLoaded(FormName name) const {
  const auto form = find(name);
  return form && form->isLoaded();
}

std::shared_ptr<Form> Forms::find(FormName name) const {
  const auto form = forms_.find(name);
  return form == forms_.end() ? nullptr : form->second;
}

void Forms::loadAnd(FormName name, void (Form::*display)()) {
  if (isEnding()) return;
  const std::shared_ptr<Form> form = findOrMake(name);
  if (!form) return;
  state_.handlerStarted();
  form->load();
  // A form may take itself down while it loads.
  if (form->isLoaded() && !isEnding()) ((*form).*display)();
  state_.handlerReturned();
}

std::shared_ptr<Form> Forms::findOrMake(FormName name) {
  if (auto form = find(name)) return form;
  const auto maker = makers_.find(name);
  if (maker == makers_.end()) return nullptr;
  return forms_[name] = maker->second();
}

bool Forms::anyVisible() const {
  return std::any_of(forms_.begin(), forms_.end(), [](const auto& entry) {
    return entry.second->isLoaded() && entry.second->window().isVisible();
  });
}

}  // namespace ratanka
