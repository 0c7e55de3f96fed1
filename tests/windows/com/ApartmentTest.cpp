// An object of one thread's apartment, called from another's.
#include <gmock/gmock.h>

#include <thread>

#include "Sample.h"
#include "windows/com/ComClient.h"
#include "windows/com/Module.h"
#include "windows/com/Objects.h"

namespace kestrune::windows {
namespace {

using automation::Arguments;
using automation::call;
using automation::get;

// Answers calls from other apartments until an event is set.
void pump_until(HANDLE done) {
    while (MsgWaitForMultipleObjects(1, &done, FALSE, 20000, QS_ALLINPUT) == WAIT_OBJECT_0 + 1) {
        MSG message;
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    }
}

TEST(Apartments, AMarshalledObjectAnswersAndComesHomeAsItself) {
    ASSERT_EQ(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED), S_OK);
    {
        const auto object = std::make_shared<Sample>();
        const ComPtr<IDispatch> server = dispatch_of(object);
        IStream* stream = nullptr;
        ASSERT_EQ(CoMarshalInterThreadInterfaceInStream(IID_IDispatch, server.Get(), &stream), S_OK);
        struct Seen {
            bool direct = true;
            Value sum;
            Value changed;
            Value failure;
            std::string type;
        } seen;
        const HANDLE done = CreateEventW(nullptr, TRUE, FALSE, nullptr);
        std::thread other([&] {
            CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
            {
                ComPtr<IDispatch> proxy;
                if (SUCCEEDED(CoGetInterfaceAndReleaseStream(stream, IID_PPV_ARGS(&proxy)))) {
                    seen.direct = proxy.Get() == server.Get();
                    const ObjectRef away = object_of(proxy.Get());
                    seen.sum = call(*away, "Add", {1, 2.5});
                    Arguments arguments{"before", "after"};
                    away->invoke("Change", automation::Call::Method, arguments);
                    seen.changed = arguments.positional[0];
                    try {
                        call(*away, "Fail", {1});
                    } catch (const automation::AutomationError& error) {
                        seen.failure = error.description();
                    }
                    seen.type = away->type_name();
                    call(*away, "Keep", {away});
                }
            }
            CoUninitialize();
            SetEvent(done);
        });
        pump_until(done);
        other.join();
        CloseHandle(done);
        EXPECT_FALSE(seen.direct);
        EXPECT_EQ(seen.sum, Value(3.5));
        EXPECT_EQ(seen.changed, Value("after"));
        EXPECT_EQ(seen.failure, Value("It \xC3\xBC failed"));
        EXPECT_EQ(seen.type, "Sample");
        EXPECT_EQ(object->held(), Value(ObjectRef(object)));
        object->set_held(automation::Empty{});
    }
    CoUninitialize();
    EXPECT_EQ(Module::count(), 0);
}

}  // namespace
}  // namespace kestrune::windows
