#pragma once

#include <QtTest/QAbstractItemModelTester>

namespace wayloom {

/// Ends the test program as soon as the model breaks a rule of its kind, for as long as it lives.
inline void checkModel(QAbstractItemModel* model) {
  new QAbstractItemModelTester(model, QAbstractItemModelTester::FailureReportingMode::Fatal, model);
}

}  // namespace wayloom
