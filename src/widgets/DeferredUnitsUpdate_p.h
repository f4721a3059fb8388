#pragma once

namespace Kavrel::UICore::Internal {

// The batching of unit and format changes that the numeric controls share.
// While deferring, a change only marks that an update is due; the owner of the
// batch switches deferring off and asks the control to update once.
class DeferredUnitsUpdate
{
public:
    bool IsDeferring() const { return mbDefer; }
    void SetDeferring(bool defer) { mbDefer = defer; }
    bool HasPending() const { return mbPending; }
    void Mark() { mbPending = true; }
    void Clear() { mbPending = false; }

    // Marks while deferring; otherwise runs the update, which settles the mark.
    template <typename Update> void MarkOrRun(Update&& update)
    {
        if (mbDefer) {
            mbPending = true;
            return;
        }
        update();
        mbPending = false;
    }

private:
    bool mbDefer = false;
    bool mbPending = false;
};

} // namespace Kavrel::UICore::Internal
