#pragma once

#include <QtCore/QList>
#include <QtCore/QVariantList>

#include <functional>

#include "Application.h"
#include "World.h"

class Stage;

/// One thing that the application or the service does.
using Step = std::function<void(Stage&)>;
using Script = QList<Step>;

/// The steps that situations are written in; see Stage.
namespace Steps {

Step start(const Settings& settings);
Step switchTo(int application);
Step init(const Settings& settings);
Step reset();
Step destroy();

Step check();
Step checks(int count);
Step untilIdle();
Step untilChanged();
Step untilEntered(const char* state);
Step untilSettled();

Step changed();
Step convert();
Step dependents();
Step keep();
Step kept();

Step startModule(const char* module);
Step stopModule(const char* module);
Step release(const SourceName& name);
Step callTimeout(int milliseconds);
/// A change of the configuration, announced under its own name.
Step change(const SourceName& name, int count = 1);
/// A change announced on the configuration's object with other arguments.
Step changeWith(const SourceName& name, const QVariantList& arguments);

} // namespace Steps
