#include "FirstFrameListener.h"

namespace {

FirstFrameListener* listener = nullptr;

}  // namespace

void setFirstFrameListener(FirstFrameListener* newListener) { listener = newListener; }

void notifyFirstFrameShown() {
    if (listener) listener->firstFrameShown();
}

void notifyFrameShown() {
    if (listener) listener->frameShown();
}
