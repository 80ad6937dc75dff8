// A warning or error in the log that a test did not announce fails that test.
//
//     LogWatch::Expect("cannot open");   // the next warning that contains this text is wanted, and must come
#pragma once
#include <QString>

namespace LogWatch {

// Hooks Qt's log and adds the check to every test of the run.
void Install();

// Announces one warning that contains `part`. A test that ends without it fails.
void Expect(const QString& part);

// Announces, for the whole run, warnings that a platform without a screen prints whatever the program does.
void Tolerate(const QString& part);

}  // namespace LogWatch
