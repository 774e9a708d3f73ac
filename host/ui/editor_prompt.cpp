#include <ui/editor_prompt.h>

#include <editor/selection_sets.h>

namespace {

KdUiEditorPrompt* currentPrompt = nullptr;

} // namespace

KdUiEditorPrompt::~KdUiEditorPrompt() = default;

KdUiEditorPrompt* kduiSetEditorPrompt(KdUiEditorPrompt* prompt)
{
    KdUiEditorPrompt* const previous = currentPrompt;
    currentPrompt = prompt;
    if (prompt)
        kdedSetSelectionPrompt(
            [prompt](std::vector<KdDbObjectId>& picked) { return prompt->pickObjects(picked); });
    else
        kdedSetSelectionPrompt({});
    return previous;
}

KdUiEditorPrompt* kduiEditorPrompt()
{
    return currentPrompt;
}
