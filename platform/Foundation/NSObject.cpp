#include "NSObject.h"

#include "NSRunLoop.h"

namespace gx {

NSObject::~NSObject() = default;

bool NSObject::init() { return true; }

void NSObject::queueOnMainRunLoop(std::function<void()> block) { NSRunLoop::mainRunLoop()->performBlock(std::move(block)); }

} // namespace gx
