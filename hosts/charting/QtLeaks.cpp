// Qt's offscreen platform never destroys its one screen. The leak sanitizer calls these functions,
// if there are any, and passes over what the first one names.
// NOLINTBEGIN(bugprone-reserved-identifier): their names are the sanitizer's.
extern "C" {
__attribute__((visibility("default"))) const char* __lsan_default_suppressions();
__attribute__((visibility("default"))) const char* __lsan_default_options();
}

const char* __lsan_default_suppressions()
{
    return "leak:libqoffscreen.so\n"
           "leak:libQt5Gui.so\n"
           "leak:QObject::QObject\n"
           "leak:QtSharedPointer::ExternalRefCountData::getAndRef\n";
}

const char* __lsan_default_options()
{
    return "print_suppressions=0";
}
// NOLINTEND(bugprone-reserved-identifier)
