#include "platform/com/ClassFactory.h"

#include "model/LejisPersonIndexCard.h"
#include "model/LejisVehicleIndexCard.h"
#include "platform/com/Module.h"
#include "support/ComCheck.h"

#include <gtest/gtest.h>

namespace platform {
namespace {

using lejis::LejisPersonIndexCard;
using lejis::LejisVehicleIndexCard;
using Microsoft::WRL::ComPtr;

const CreatableClass kClasses[] = {Creatable<LejisPersonIndexCard>(), Creatable<LejisVehicleIndexCard>()};

ComPtr<IClassFactory> FactoryOfVehicles() {
    ComPtr<IClassFactory> factory;
    EXPECT_OK(GetClassFactory(kClasses, LejisVehicleIndexCard::ClassId(), IID_PPV_ARGS(factory.GetAddressOf())));
    return factory;
}

TEST(ClassFactory, MakesANewObjectOfItsClassEachTime) {
    const auto factory = FactoryOfVehicles();
    ComPtr<ILejisVehicleIndexCard> first;
    ComPtr<ILejisVehicleIndexCard> second;
    EXPECT_OK(factory->CreateInstance(nullptr, IID_PPV_ARGS(first.GetAddressOf())));
    EXPECT_OK(factory->CreateInstance(nullptr, IID_PPV_ARGS(second.GetAddressOf())));
    ASSERT_NE(nullptr, first.Get());
    EXPECT_NE(first.Get(), second.Get());
}

TEST(ClassFactory, LeavesNothingWhereAnInterfaceIsMissing) {
    const auto factory = FactoryOfVehicles();
    ComPtr<ILejisPersonIndexCard> person;
    EXPECT_EQ(E_NOINTERFACE, factory->CreateInstance(nullptr, IID_PPV_ARGS(person.GetAddressOf())));
    EXPECT_EQ(nullptr, person.Get());
    EXPECT_EQ(E_POINTER, factory->CreateInstance(nullptr, __uuidof(IUnknown), nullptr));
}

TEST(ClassFactory, RefusesAggregation) {
    const auto factory = FactoryOfVehicles();
    ComPtr<IUnknown> object;
    EXPECT_EQ(CLASS_E_NOAGGREGATION, factory->CreateInstance(factory.Get(), IID_PPV_ARGS(object.GetAddressOf())));
    EXPECT_EQ(nullptr, object.Get());
}

TEST(ClassFactory, KeepsTheModuleInUseWhileLocked) {
    auto factory = FactoryOfVehicles();
    EXPECT_OK(factory->LockServer(TRUE));
    factory.Reset();
    EXPECT_TRUE(module::InUse());
    factory = FactoryOfVehicles();
    EXPECT_OK(factory->LockServer(FALSE));
    factory.Reset();
    EXPECT_FALSE(module::InUse());
}

TEST(ClassFactory, ExistsForTheClassesOfTheTableAlone) {
    ComPtr<IClassFactory> factory;
    EXPECT_EQ(CLASS_E_CLASSNOTAVAILABLE,
              GetClassFactory(kClasses, __uuidof(IUnknown), IID_PPV_ARGS(factory.GetAddressOf())));
    EXPECT_EQ(nullptr, factory.Get());
    ComPtr<IDispatch> automation;
    EXPECT_EQ(E_NOINTERFACE,
              GetClassFactory(kClasses, LejisVehicleIndexCard::ClassId(), IID_PPV_ARGS(automation.GetAddressOf())));
    EXPECT_EQ(E_POINTER, GetClassFactory(kClasses, LejisVehicleIndexCard::ClassId(), __uuidof(IUnknown), nullptr));
}

}  // namespace
}  // namespace platform
