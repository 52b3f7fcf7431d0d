// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#pragma once

#include "core/Ticks.h"
#include "sound/Sound.h"
#include "support/Bytes.h"
#include "support/ConsoleFixture.h"

#include <tinyxml.h>

#include <cstdint>
#include <string>
#include <vector>

namespace bc {

inline std::string wav(const std::string& samples, std::uint32_t rate = 44100, int outputs = 1,
                       int bits = 16, int format = 1) {
    const std::uint64_t frame =
        static_cast<std::uint64_t>(outputs) * static_cast<std::uint64_t>(bits) / 8;
    return "RIFF" + little(36 + samples.size(), 4) + "WAVEfmt " + little(16, 4) +
           little(static_cast<std::uint64_t>(format), 2) +
           little(static_cast<std::uint64_t>(outputs), 2) + little(rate, 4) +
           little(rate * frame, 4) + little(frame, 2) +
           little(static_cast<std::uint64_t>(bits), 2) + "data" + little(samples.size(), 4) +
           samples;
}

/// A mono file at 44.1 kHz that holds one level for a while.
inline std::string flatWav(int frames, int level = 8000) {
    std::string samples;
    for (int i = 0; i < frames; ++i)
        samples += little(static_cast<std::uint16_t>(level), 2);
    return wav(samples);
}

/// The variables of the sound system as a level finds them, a virtual clock, and a mono device.
class SoundFixture : public ConsoleFixture {
  protected:
    SoundFixture() {
        useVirtualTicks(1000);
        for (const auto& [name, value] : {std::pair("volume", "128"),
                                          {"musicvolume", "128"},
                                          {"soundfrequency", "44100"},
                                          {"soundchannels", "1"},
                                          {"soundbuffer", "2048"},
                                          {"logsounds", "1"}})
            vars().createOrSet(name, value, "");
    }
    ~SoundFixture() override { useRealTicks(); }

    void file(const std::string& name, const std::string& contents) {
        put(data() + "/" + name, contents);
    }
    /// Loads definitions given as the attributes of each; returns what is logged.
    std::string define(Sound& sound, const std::vector<std::string>& entries) {
        std::string text = "<sounds>";
        for (const std::string& entry : entries)
            text += "<sound " + entry + "/>";
        file("defs.xml", text + "</sounds>");
        return logOf([&] { sound.loadSoundDefs("defs.xml"); });
    }
    /// An attribute of a channel in the dump, empty when that channel never played.
    static std::string channel(const Sound& sound, int number, const char* attribute) {
        TiXmlElement root("root");
        sound.dumpState(root);
        for (const TiXmlElement* e = root.FirstChildElement()->FirstChildElement("channel"); e;
             e = e->NextSiblingElement("channel"))
            if (std::to_string(number) == e->Attribute("number"))
                return e->Attribute(attribute);
        return "";
    }
};

}  // namespace bc
