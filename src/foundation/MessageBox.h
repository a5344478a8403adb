#pragma once

#include <vector>

namespace sv::Mb {

// Button sets (low nibble of the flags).
inline constexpr int OK = 0;
inline constexpr int OKCancel = 1;
inline constexpr int AbortRetryIgnore = 2;
inline constexpr int YesNoCancel = 3;
inline constexpr int YesNo = 4;
inline constexpr int RetryCancel = 5;

// Icons.
inline constexpr int Critical = 16;
inline constexpr int Question = 32;
inline constexpr int Exclamation = 48;
inline constexpr int Information = 64;

// Default button.
inline constexpr int DefaultButton1 = 0;
inline constexpr int DefaultButton2 = 256;
inline constexpr int DefaultButton3 = 512;

// Modality.
inline constexpr int ApplicationModal = 0;
inline constexpr int SystemModal = 4096;

inline constexpr int ButtonMask = 0x0F;
inline constexpr int IconMask = 0xF0;
inline constexpr int DefaultMask = 0xF00;

// Answers.
inline constexpr int IdOK = 1;
inline constexpr int IdCancel = 2;
inline constexpr int IdAbort = 3;
inline constexpr int IdRetry = 4;
inline constexpr int IdIgnore = 5;
inline constexpr int IdYes = 6;
inline constexpr int IdNo = 7;

// The answers a box with these flags offers, left to right.
std::vector<int> Buttons(int flags);

// The answer of the default button; the first button when the flags name one the box lacks.
int DefaultAnswer(int flags);

}  // namespace sv::Mb
