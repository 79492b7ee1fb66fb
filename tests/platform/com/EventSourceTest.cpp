#include "platform/com/EventSource.h"

#include "services/LejisSubmissionWebService.h"
#include "support/ComCheck.h"

#include <gtest/gtest.h>

#include <olectl.h>

namespace platform {
namespace {

using lejis::LejisSubmissionWebService;
using Microsoft::WRL::ComPtr;

TEST(EventSource, HasOneConnectionPointForItsEvents) {
    const auto service = Create<LejisSubmissionWebService>();
    ComPtr<IConnectionPoint> found;
    ASSERT_OK(service->FindConnectionPoint(__uuidof(_LejisSubmissionWebServiceEvents), found.GetAddressOf()));
    ComPtr<IEnumConnectionPoints> points;
    ASSERT_OK(service->EnumConnectionPoints(points.GetAddressOf()));
    IConnectionPoint* listed[2] = {};
    ULONG fetched = 0;
    EXPECT_EQ(S_FALSE, points->Next(2, listed, &fetched));
    ASSERT_EQ(1u, fetched);
    EXPECT_EQ(found.Get(), listed[0]);
    listed[0]->Release();
}

TEST(EventSource, HasNoConnectionPointForOtherEvents) {
    const auto service = Create<LejisSubmissionWebService>();
    ComPtr<IConnectionPoint> point;
    EXPECT_EQ(CONNECT_E_NOCONNECTION, service->FindConnectionPoint(__uuidof(_ISuiteTimerEvents), point.GetAddressOf()));
    EXPECT_EQ(nullptr, point.Get());
    EXPECT_EQ(E_POINTER, service->FindConnectionPoint(__uuidof(_LejisSubmissionWebServiceEvents), nullptr));
    EXPECT_EQ(E_POINTER, service->EnumConnectionPoints(nullptr));
}

TEST(EventSource, IsKeptAliveByItsConnectionPoint) {
    ComPtr<IConnectionPoint> point;
    ASSERT_OK(Create<LejisSubmissionWebService>()->FindConnectionPoint(__uuidof(_LejisSubmissionWebServiceEvents),
                                                                       point.GetAddressOf()));
    ComPtr<IConnectionPointContainer> container;
    ASSERT_OK(point->GetConnectionPointContainer(container.GetAddressOf()));
    ComPtr<ILejisSubmissionWebService> service;
    EXPECT_OK(container.As(&service));
}

TEST(EventSource, NamesItsDefaultEvents) {
    GUID events{};
    const auto service = Create<LejisSubmissionWebService>();
    ComPtr<IProvideClassInfo2> information;
    ASSERT_OK(service->QueryInterface(IID_PPV_ARGS(information.GetAddressOf())));
    EXPECT_OK(information->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events));
    EXPECT_TRUE(events == __uuidof(_LejisSubmissionWebServiceEvents));
}

}  // namespace
}  // namespace platform
