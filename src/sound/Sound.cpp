// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "sound/Sound.h"

#include "command/CommandRegistry.h"
#include "command/GameVar.h"
#include "core/Log.h"
#include "resources/FileSystem.h"
#include "resources/ResourceManager.h"
#include "resources/XmlAttributes.h"
#include "sound/SdlMixer.h"

#include <tinyxml.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace bc {

namespace {

// SDL's number for signed 16-bit little-endian samples, for the log.
constexpr int deviceFormat = 0x8010;

// The distance from the listener, in world units, from which on a positional sound is silent.
constexpr double hearingRange = 480.0;

// The values of variables that are not declared.
constexpr int defaultVolume = 128;
constexpr int defaultFrequency = 44100;
constexpr int defaultOutputs = 2;
constexpr int defaultBuffer = 2048;

int valueOf(const GameVar* var, int undeclared) {
    return var ? var->intValue() : undeclared;
}

// The sound system that musicFinishedHook informs. The hook runs on the mixer's thread.
std::atomic<Sound*> musicOwner = nullptr;

void musicFinishedHook() {
    if (Sound* sound = musicOwner.load())
        sound->onMusicFinished();
}

}  // namespace

Sound::Sound() : Sound(std::make_unique<SdlMixer>()) {}

Sound::Sound(std::unique_ptr<Mixer> mixer) : mixer_(std::move(mixer)), playlist_(*mixer_) {}

Sound::~Sound() {
    Sound* self = this;
    if (musicOwner.compare_exchange_strong(self, nullptr))
        mixer_->onMusicFinished(nullptr);
    mixer_->close();
}

bool Sound::openAudio() {
    mixer_->close();
    logLine("Audio Format: " + std::to_string(deviceFormat));
    const int frequency = valueOf(frequencyVar_, defaultFrequency);
    const int outputs = valueOf(channelsVar_, defaultOutputs);
    initialised_ = mixer_->open(frequency, outputs, valueOf(bufferVar_, defaultBuffer));
    if (!initialised_) {
        logLine("Sound init Failed: " + mixer_->error());
        return false;
    }
    mixer_->allocateChannels(channelCount);
    const int reserved = mixer_->reserveChannels(reservedChannels);
    if (reserved != reservedChannels)
        logLine("Audio: Tried to reserve 9 channels, but could only reserve " +
                std::to_string(reserved));
    const int grouped = mixer_->groupChannels(0, reservedChannels - 1, 0);
    if (grouped != reservedChannels)
        logLine("Audio: Tried to group channel 0-8 = 9 channels, but only grouped " +
                std::to_string(grouped));
    if (frequency != sampleFrequency_ || outputs != sampleOutputs_)
        reloadSamples();
    sampleFrequency_ = frequency;
    sampleOutputs_ = outputs;
    // A device starts at full volume whenever it is opened.
    applyVolume();
    applyMusicVolume();
    resumeLoops();
    playlist_.retry();
    if (!waitingDefs_.empty())
        loadSoundDefs(std::exchange(waitingDefs_, {}));
    return true;
}

// Samples are converted to the rate of the device when they are loaded. After a change of the rate
// they would play at a wrong pitch, so they are loaded again. A sample whose file cannot be read
// any more keeps its data.
void Sound::reloadSamples() {
    for (auto& sample : samples_) {
        const auto file = files::resolve(sample->path);
        auto data = file ? mixer_->loadSample(*file) : nullptr;
        if (data)
            sample->data = std::move(data);
    }
}

// A sound that repeats for ever is started only once by its owner, who relies on its channel. It is
// started again on that channel when the device was reopened. All other sounds end with the device.
void Sound::resumeLoops() {
    for (int i = 0; i < channelCount; ++i) {
        SoundChannelInfo& info = channels_[static_cast<std::size_t>(i)];
        const SoundSample* sample = sampleAt(info.sampleIndex);
        if (!sample || !info.playing || !info.endless || mixer_->play(i, *sample->data, -1) != i)
            info = SoundChannelInfo();
    }
}

bool Sound::init() {
    bindVariables();
    initialised_ = openAudio();
    registerCommands();
    if (initialised_) {
        setVolume(valueOf(volumeVar_, defaultVolume));
        mixer_->setMusicVolume(valueOf(musicVolumeVar_, defaultVolume));
    }
    musicOwner = this;
    mixer_->onMusicFinished(musicFinishedHook);
    return initialised_;
}

void Sound::bindVariables() {
    volumeVar_ = vars().findVar("volume");
    musicVolumeVar_ = vars().findVar("musicvolume");
    bufferVar_ = vars().findVar("soundbuffer");
    channelsVar_ = vars().findVar("soundchannels");
    frequencyVar_ = vars().findVar("soundfrequency");
    logVar_ = vars().findVar("logsounds");
    if (!logVar_) {
        logVar_ = vars().createOrSet("logsounds", "0", "writes every play request to the log");
        logVar_->type = VarType::integer;
    }
    if (volumeVar_)
        volumeVar_->onChange = [this] { applyVolume(); };
    if (musicVolumeVar_)
        musicVolumeVar_->onChange = [this] { applyMusicVolume(); };
}

void Sound::shutdown() {
    playlist_.stop();
    mixer_->close();
    initialised_ = false;
    if (volumeVar_)
        volumeVar_->onChange = nullptr;
    if (musicVolumeVar_)
        musicVolumeVar_->onChange = nullptr;
    volumeVar_ = musicVolumeVar_ = bufferVar_ = channelsVar_ = frequencyVar_ = logVar_ = nullptr;
}

void Sound::setVolume(int volume) {
    if (!initialised_)
        return;
    if (volume < 0 || volume > 128) {
        consolePrint("Volume must be between 0 and 128");
        return;
    }
    if (volumeVar_)
        volumeVar_->setInt(volume);
}

void Sound::setMusicVolume(int volume) {
    if (musicVolumeVar_)
        musicVolumeVar_->setInt(volume);
    mixer_->setMusicVolume(volume);
}

void Sound::applyVolume() {
    mixer_->setVolume(-1, valueOf(volumeVar_, defaultVolume));
}

void Sound::applyMusicVolume() {
    if (initialised_)
        mixer_->setMusicVolume(valueOf(musicVolumeVar_, defaultVolume));
}

int Sound::getVolume() const {
    return initialised_ ? valueOf(volumeVar_, defaultVolume) : 0;
}

void Sound::setAudioParams(int frequency, int channels, int bufferSize) {
    const int oldFrequency = valueOf(frequencyVar_, defaultFrequency);
    const int oldChannels = valueOf(channelsVar_, defaultOutputs);
    const int oldBuffer = valueOf(bufferVar_, defaultBuffer);
    // Only the numbers of the variables change. Their texts, which are the saved settings, change
    // when the player confirms them.
    const auto put = [this](int f, int c, int b) {
        if (frequencyVar_)
            frequencyVar_->setIntOnly(f);
        if (channelsVar_)
            channelsVar_->setIntOnly(c);
        if (bufferVar_)
            bufferVar_->setIntOnly(b);
    };
    const auto values = [](int f, int c, int b) {
        return std::to_string(f) + " : Channels: " + std::to_string(c) +
               " : Buffser Size: " + std::to_string(b);
    };
    put(frequency, channels, bufferSize);
    if (openAudio())
        return;
    logLine("Couldnt init sound with: Freq: " + values(frequency, channels, bufferSize));
    logLine("Falling back to last known safe: Freq" + values(oldFrequency, oldChannels, oldBuffer));
    put(oldFrequency, oldChannels, oldBuffer);
    initialised_ = openAudio();
}

void Sound::setAll(int volume, int /*musicVolume*/, int frequency, int channels, int bufferSize) {
    setAudioParams(frequency, channels, bufferSize);
    setVolume(volume);
}

void Sound::getSettings(int& volume, int& musicVolume, int& frequency, int& channels,
                        int& bufferSize) const {
    volume = valueOf(volumeVar_, defaultVolume);
    musicVolume = valueOf(musicVolumeVar_, defaultVolume);
    frequency = valueOf(frequencyVar_, defaultFrequency);
    channels = valueOf(channelsVar_, defaultOutputs);
    bufferSize = valueOf(bufferVar_, defaultBuffer);
}

int Sound::findSampleIndex(const std::string& path) const {
    const auto found = nameMap_.find(path);
    return found == nameMap_.end() ? -1 : found->second;
}

int Sound::indexOfId(int id) const {
    const auto found = idMap_.find(id);
    return found == idMap_.end() ? -1 : found->second;
}

int Sound::loadSampleByName(const std::string& path) {
    return loadSample(-1, -1, 100, false, path);
}

void Sound::registerSoundId(int id, const std::string& path) {
    registerSound(id, -1, 100, false, path);
}

void Sound::registerSound(int id, int channel, int volume, bool positional,
                          const std::string& path) {
    int index = findSampleIndex(path);
    if (index < 0)
        index = loadSample(id, channel, volume, positional, path);
    idMap_[id] = index;
}

void Sound::loadSoundDefs(const std::string& path) {
    TiXmlDocument document;
    if (!resourceManager().loadXML(document, path)) {
        logLine("Could not load sound defs file: " + path);
        return;
    }
    waitingDefs_ = initialised_ ? std::string() : path;
    for (const TiXmlElement* e = document.RootElement()->FirstChildElement(); e;
         e = e->NextSiblingElement())
        registerSound(xml::readInt(*e, "id"), xml::readInt(*e, "channel"),
                      xml::readInt(*e, "volume"), xml::readBool(*e, "positional"),
                      xml::readString(*e, "path"));
}

SoundSample* Sound::getSample(const std::string& path) {
    return initialised_ ? sampleAt(findSampleIndex(path)) : nullptr;
}

int Sound::loadSample(int id, int channel, int volume, bool positional, const std::string& path) {
    if (!initialised_)
        return -1;
    const auto file = files::resolve(path);
    auto data = file ? mixer_->loadSample(*file) : nullptr;
    if (!data) {
        logLine("Couldn't find sound: " + path);
        return -1;
    }
    auto sample = std::make_unique<SoundSample>();
    sample->data = std::move(data);
    sample->path = path;
    sample->id = id;
    sample->channel = channel;
    sample->volume = volume;
    sample->positional = positional;
    samples_.push_back(std::move(sample));
    const int index = static_cast<int>(samples_.size()) - 1;
    nameMap_[path] = index;
    return index;
}

void Sound::updateListener(const Vector& position) {
    if (!initialised_)
        return;
    playingCount_ = 0;
    const auto master = static_cast<float>(valueOf(volumeVar_, defaultVolume));
    for (int i = 0; i < channelCount; ++i) {
        SoundChannelInfo& info = channels_[static_cast<std::size_t>(i)];
        float volume = master;
        if (info.positional) {
            // Not below 0, since its product with a negative master volume would be a loud one.
            const double nearness =
                std::max(1 - distance(position, info.position) / hearingRange, 0.0);
            volume = static_cast<float>(std::trunc(nearness * volume));
            volume = static_cast<float>(volume / 100.0 * info.volume);
        }
        mixer_->setVolume(i, volume > 0 ? static_cast<int>(std::min(volume, 128.0F)) : 0);
        info.playing = mixer_->isPlaying(i);
        playingCount_ += info.playing ? 1 : 0;
    }
}

void Sound::stopChannel(int channel) {
    if (channel < 0 || channel >= channelCount)
        return;
    channels_[static_cast<std::size_t>(channel)].playing = false;
    mixer_->halt(channel);
}

void Sound::onMusicFinished() {
    musicFinished_ = true;
}

void Sound::startPlaylist(const std::string& name) {
    playlist_.start(name);
}

void Sound::nextTrack() {
    playlist_.next();
}

void Sound::update() {
    // Without a device or when no track can be played, an attempt in each frame would only fill the
    // log.
    if (initialised_ && !playlist_.isUnplayable() && !mixer_->isMusicPlaying() &&
        !mixer_->isMusicPaused())
        nextTrack();
    musicFinished_ = false;
}

IPlaylist* Sound::getPlaylist() {
    return &playlist_;
}

void Sound::dumpState(TiXmlElement& parent) const {
    TiXmlElement e("sound");
    e.SetAttribute("initialised", initialised_ ? "true" : "false");
    e.SetAttribute("volume", valueOf(volumeVar_, defaultVolume));
    e.SetAttribute("musicvolume", valueOf(musicVolumeVar_, defaultVolume));
    e.SetAttribute("frequency", valueOf(frequencyVar_, defaultFrequency));
    e.SetAttribute("outputs", valueOf(channelsVar_, defaultOutputs));
    e.SetAttribute("buffer", valueOf(bufferVar_, defaultBuffer));
    e.SetAttribute("samples", static_cast<int>(samples_.size()));
    e.SetAttribute("playingcount", playingCount_);
    e.SetAttribute("trackindex", playlist_.currentIndex());
    xml::writeString(e, "track", playlist_.currentTrack());
    e.SetAttribute("musicplaying", mixer_->isMusicPlaying() ? "true" : "false");
    for (int i = 0; i < channelCount; ++i) {
        const SoundChannelInfo& info = channels_[static_cast<std::size_t>(i)];
        const SoundSample* sample = sampleAt(info.sampleIndex);
        if (!sample)
            continue;
        TiXmlElement child("channel");
        child.SetAttribute("number", i);
        xml::writeBool(child, "playing", mixer_->isPlaying(i));
        child.SetAttribute("id", sample->id);
        xml::writeString(child, "path", sample->path);
        xml::writeBool(child, "positional", info.positional);
        xml::writeValue(child, "position", info.position);
        child.SetAttribute("volume", mixer_->volume(i));
        xml::writeBool(child, "looping", info.looping);
        e.InsertEndChild(child);
    }
    parent.InsertEndChild(e);
}

}  // namespace bc
