#include "Steps.h"

#include "Stage.h"

Step Steps::start(const Settings& settings)
{
    return [settings](Stage& stage) {
        stage.startApplication(settings);
    };
}

Step Steps::switchTo(int application)
{
    return [application](Stage& stage) {
        stage.switchTo(application);
    };
}

Step Steps::init(const Settings& settings)
{
    return [settings](Stage& stage) {
        stage.init(settings);
    };
}

Step Steps::reset()
{
    return [](Stage& stage) {
        stage.reset();
    };
}

Step Steps::destroy()
{
    return [](Stage& stage) {
        stage.destroy();
    };
}

Step Steps::check()
{
    return [](Stage& stage) {
        stage.check();
    };
}

Step Steps::checks(int count)
{
    return [count](Stage& stage) {
        stage.check(count);
    };
}

Step Steps::untilIdle()
{
    return [](Stage& stage) {
        stage.checkUntilIdle();
    };
}

Step Steps::untilChanged()
{
    return [](Stage& stage) {
        stage.checkUntilChanged();
    };
}

Step Steps::untilEntered(const char* state)
{
    return [state](Stage& stage) {
        stage.checkUntilEntered(QLatin1String(state));
    };
}

Step Steps::untilSettled()
{
    return [](Stage& stage) {
        stage.checkUntilSettled();
    };
}

Step Steps::changed()
{
    return [](Stage& stage) {
        stage.askChanged();
    };
}

Step Steps::convert()
{
    return [](Stage& stage) {
        stage.convert();
    };
}

Step Steps::dependents()
{
    return [](Stage& stage) {
        stage.askDependents();
    };
}

Step Steps::keep()
{
    return [](Stage& stage) {
        stage.keepUnits();
    };
}

Step Steps::kept()
{
    return [](Stage& stage) {
        stage.convertByKept();
    };
}

Step Steps::startModule(const char* module)
{
    return [module](Stage& stage) {
        stage.startModule(QLatin1String(module));
    };
}

Step Steps::stopModule(const char* module)
{
    return [module](Stage& stage) {
        stage.stopModule(QLatin1String(module));
    };
}

Step Steps::release(const SourceName& name)
{
    return [name](Stage& stage) {
        stage.release(name);
    };
}

Step Steps::change(const SourceName& name, int count)
{
    return [name, count](Stage& stage) {
        stage.announce(name, {name.configuration}, count);
    };
}

Step Steps::changeWith(const SourceName& name, const QVariantList& arguments)
{
    return [name, arguments](Stage& stage) {
        stage.announce(name, arguments);
    };
}

Step Steps::callTimeout(int milliseconds)
{
    return [milliseconds](Stage&) {
        Stage::setCallTimeout(milliseconds);
    };
}
