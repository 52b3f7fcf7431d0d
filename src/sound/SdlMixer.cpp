// SPDX-FileCopyrightText: The Brightclash developers
// SPDX-License-Identifier: MIT
#include "sound/SdlMixer.h"

#include "sound/AudioFile.h"

#include <SDL/SDL.h>
#include <SDL/SDL_mixer.h>

namespace bc {

namespace {

class SdlSample final : public MixerSample {
  public:
    explicit SdlSample(Mix_Chunk* chunk) : chunk_(chunk) {}
    ~SdlSample() override { Mix_FreeChunk(chunk_); }
    SdlSample(const SdlSample&) = delete;
    SdlSample& operator=(const SdlSample&) = delete;
    [[nodiscard]] Mix_Chunk* chunk() const { return chunk_; }

  private:
    Mix_Chunk* chunk_;
};

class SdlMusic final : public MixerMusic {
  public:
    explicit SdlMusic(Mix_Music* music) : music_(music) {}
    ~SdlMusic() override { Mix_FreeMusic(music_); }
    SdlMusic(const SdlMusic&) = delete;
    SdlMusic& operator=(const SdlMusic&) = delete;
    [[nodiscard]] Mix_Music* music() const { return music_; }

  private:
    Mix_Music* music_;
};

}  // namespace

SdlMixer::~SdlMixer() {
    close();
}

bool SdlMixer::open(int frequency, int outputs, int bufferSize) {
    close();
    error_ = unusable;
    if (!areSettingsUsable(frequency, outputs, bufferSize))
        return false;
    open_ = Mix_OpenAudio(frequency, AUDIO_S16LSB, outputs, bufferSize) == 0;
    if (!open_) {
        error_ = SDL_GetError();
        // Otherwise SDL would not look for a driver again at the next attempt.
        SDL_QuitSubSystem(SDL_INIT_AUDIO);
    }
    return open_;
}

void SdlMixer::close() {
    if (open_)
        Mix_CloseAudio();
    open_ = false;
    channelCount_ = 0;
}

std::string SdlMixer::error() const {
    return error_;
}

int SdlMixer::allocateChannels(int count) {
    if (open_)
        channelCount_ = Mix_AllocateChannels(count);
    return channelCount_;
}

int SdlMixer::reserveChannels(int count) {
    return open_ ? Mix_ReserveChannels(count) : 0;
}

int SdlMixer::groupChannels(int first, int last, int group) {
    return open_ ? Mix_GroupChannels(first, last, group) : 0;
}

std::unique_ptr<MixerSample> SdlMixer::loadSample(const std::string& diskPath) {
    // SDL_mixer's decoders trust the headers of a file, so these are checked first.
    if (!open_ || !readAudioFileInfo(diskPath))
        return nullptr;
    SDL_RWops* file = SDL_RWFromFile(diskPath.c_str(), "rb");
    Mix_Chunk* chunk = file ? Mix_LoadWAV_RW(file, 1) : nullptr;
    return chunk ? std::make_unique<SdlSample>(chunk) : nullptr;
}

int SdlMixer::play(int channel, MixerSample& sample, int loops) {
    // SDL_mixer returns a channel out of its range as if the sample played there.
    if (!open_ || channel < -1 || channel >= channelCount_)
        return -1;
    return Mix_PlayChannelTimed(channel, static_cast<SdlSample&>(sample).chunk(), loops, -1);
}

void SdlMixer::halt(int channel) {
    if (open_ && channel >= 0 && channel < channelCount_)
        Mix_HaltChannel(channel);
}

void SdlMixer::setVolume(int channel, int volume) {
    if (open_)
        Mix_Volume(channel, volume);
}

int SdlMixer::volume(int channel) const {
    return open_ && channel >= 0 && channel < channelCount_ ? Mix_Volume(channel, -1) : 0;
}

bool SdlMixer::isPlaying(int channel) const {
    return open_ && channel >= 0 && channel < channelCount_ && Mix_Playing(channel) != 0;
}

std::unique_ptr<MixerMusic> SdlMixer::loadMusic(const std::string& diskPath) {
    if (!readAudioFileInfo(diskPath))
        return nullptr;
    Mix_Music* music = Mix_LoadMUS(diskPath.c_str());
    return music ? std::make_unique<SdlMusic>(music) : nullptr;
}

bool SdlMixer::playMusic(MixerMusic& music) {
    return open_ && Mix_PlayMusic(static_cast<SdlMusic&>(music).music(), 1) == 0;
}

void SdlMixer::haltMusic() {
    if (open_)
        Mix_HaltMusic();
}

void SdlMixer::setMusicVolume(int volume) {
    if (open_)
        Mix_VolumeMusic(volume);
}

bool SdlMixer::isMusicPlaying() const {
    return open_ && Mix_PlayingMusic() != 0;
}

bool SdlMixer::isMusicPaused() const {
    return open_ && Mix_PausedMusic() != 0;
}

void SdlMixer::onMusicFinished(void (*hook)()) {
    Mix_HookMusicFinished(hook);
}

}  // namespace bc
